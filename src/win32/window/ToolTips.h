#pragma once

#include <windows.h>

#include <string>

#include "win32/base/Handle.h"

namespace vantor::win32 {

class FormWindow;

/// The tool tips of a form's controls. Nothing is made before the mouse first comes by.
class ToolTips {
 public:
  explicit ToolTips(FormWindow& owner) : owner_(owner) {}

  /// Sees each mouse message for a control of the form.
  void Relay(const MSG& message);
  /// Puts the tool tip that is shown above all other windows again.
  void Raise();
  void Hide() const;
  /// The resolution has changed: the next tool tip is made anew.
  void Forget() { window_.Reset(); }
  /// Answers the tool-tip window's question for its text. Returns false for any other notification.
  bool OnNotify(NMHDR& notification);

 private:
  FormWindow& owner_;
  WindowHandle window_;
  std::wstring text_;  // what the window shows, which must outlive the question
};

}  // namespace vantor::win32
