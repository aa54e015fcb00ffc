#include "win32/window/FormKeys.h"

#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

bool FormKeys::OnKey(const MSG& message) {
  const WPARAM key = message.wParam;
  if (key >= down_.size()) return false;
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
    const ControlWindow* const control = ControlWindow::From(message.hwnd);
    const bool functionKey = key >= VK_F1 && key <= VK_F12;
    down_[key] = functionKey || control == nullptr || !control->KeepsKeys();
    const bool plainTab = key == VK_TAB && message.message == WM_KEYDOWN && GetKeyState(VK_CONTROL) >= 0;
    if (!plainTab || !form_.AcceptsInput()) return false;
    form_.MoveFocus(GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  // A key that went down elsewhere was meant for elsewhere: the Enter that closed a message, say.
  if (!down_[key]) return false;
  down_[key] = false;
  form_.InputKeyUp(static_cast<form::Key>(key));
  return form_.Window() == nullptr;  // unloaded: nobody is left to see the message
}

}  // namespace vantor::win32
