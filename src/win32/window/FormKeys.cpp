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
  // A key that was pressed in another window was meant for that one, such as the Enter that closed a message.
  if (!down_[key]) return false;
  down_[key] = false;
  form_.InputKeyUp(static_cast<form::Key>(key));
  return form_.Window() == nullptr;  // unloaded: there is no window left for the message
}

}  // namespace vantor::win32
