#include "win32/window/ToolTips.h"

#include <commctrl.h>

#include "text/DirectionMarks.h"
#include "win32/window/CommonControls.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

/// The greatest width of a tool tip, in pixels at 96 dots per inch; longer texts wrap.
constexpr int MaximumWidth = 480;

void ToolTips::Relay(const MSG& message) {
  ControlWindow* const control = ControlWindow::From(message.hwnd);
  if (control == nullptr) return;
  if (!window_) {
    if (control->TipText().empty()) return;
    const CommonControls version6;
    // If the form owned it, the form would stop being topmost under Wine.
    window_.Reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                  CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                                  owner_.Desktop().ApplicationWindow(), nullptr, nullptr, nullptr));
    SendMessageW(window_.Get(), TTM_SETMAXTIPWIDTH, 0, MulDiv(MaximumWidth, owner_.Dpi(), 96));
  }
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = owner_.Hwnd();
  tool.uId = reinterpret_cast<UINT_PTR>(message.hwnd);
  if (SendMessageW(window_.Get(), TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) == FALSE) {
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(window_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
  MSG copy = message;
  SendMessageW(window_.Get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

void ToolTips::Raise() {
  if (!window_ || !IsWindowVisible(window_.Get())) return;
  SetWindowPos(window_.Get(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void ToolTips::Hide() const {
  if (window_) SendMessageW(window_.Get(), TTM_POP, 0, 0);
}

bool ToolTips::OnNotify(NMHDR& notification) {
  if (!window_ || notification.hwndFrom != window_.Get() || notification.code != TTN_GETDISPINFOW) return false;
  const ControlWindow* const control = ControlWindow::From(reinterpret_cast<HWND>(notification.idFrom));
  text_ = control != nullptr ? text::WithSignsForMarks(control->TipText()) : std::wstring();
  reinterpret_cast<NMTTDISPINFOW&>(notification).lpszText = text_.data();
  return true;
}

}  // namespace vantor::win32
