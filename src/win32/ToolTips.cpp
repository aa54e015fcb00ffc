#include "win32/ToolTips.h"

#include <commctrl.h>

#include "win32/ControlWindow.h"

namespace vantor::win32 {

namespace {

/// Widest tool tip, in pixels at 96 dots per inch; longer ones are broken into lines.
constexpr int MaximumWidth = 480;

}  // namespace

void ToolTips::Relay(const MSG& message) {
  ControlWindow* const control = ControlWindow::From(message.hwnd);
  if (control == nullptr) return;
  if (window_ == nullptr) {
    if (control->TipText().empty()) return;
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    window_ =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner_.Hwnd(), nullptr, nullptr, nullptr);
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, MulDiv(MaximumWidth, owner_.Dpi(), 96));
  }
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = owner_.Hwnd();
  tool.uId = reinterpret_cast<UINT_PTR>(message.hwnd);
  if (SendMessageW(window_, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)) == FALSE) {
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
  MSG copy = message;
  SendMessageW(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&copy));
}

bool ToolTips::OnNotify(NMHDR& notification) {
  if (window_ == nullptr || notification.hwndFrom != window_ || notification.code != TTN_GETDISPINFOW) return false;
  const ControlWindow* const control = ControlWindow::From(reinterpret_cast<HWND>(notification.idFrom));
  text_ = control != nullptr ? control->TipText() : std::wstring();
  reinterpret_cast<NMTTDISPINFOW&>(notification).lpszText = text_.data();
  return true;
}

}  // namespace vantor::win32
