#pragma once

#include <windows.h>

#include <string>

#include "win32/base/Handle.h"

namespace vantor::win32 {

class FormWindow;

/// The tool tips of a form's controls. Nothing is created until the mouse first moves over a control.
class ToolTips {
 public:
  explicit ToolTips(FormWindow& owner) : owner_(owner) {}

  /// Gets each mouse message for a control of the form.
  void Relay(const MSG& message);
  /// Moves the visible tool tip above all other windows again.
  void Raise();
  void Hide() const;
  /// The resolution has changed: the next tool tip is created again.
  void Forget() { window_.Reset(); }
  /// Answers the tool-tip window's question for its text. Returns false for any other notification.
  bool OnNotify(NMHDR& notification);

 private:
  FormWindow& owner_;
  WindowHandle window_;
  std::wstring text_;  // the text shown, which must outlive the notification
};

}  // namespace vantor::win32
