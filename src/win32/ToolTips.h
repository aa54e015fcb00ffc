#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

class FormWindow;

/// The tool tips of a form's controls. Nothing is made before the mouse first comes by.
class ToolTips {
 public:
  explicit ToolTips(FormWindow& owner) : owner_(owner) {}

  /// Sees each mouse message for a control of the form.
  void Relay(const MSG& message);
  /// Answers the tool-tip window's question for its text. Returns false for any other notification.
  bool OnNotify(NMHDR& notification);

 private:
  FormWindow& owner_;
  HWND window_ = nullptr;  // goes with its owner
  std::wstring text_;      // what the window shows, which must outlive the question
};

}  // namespace vantor::win32
