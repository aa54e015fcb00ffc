#include "win32/service/WindowPicker.h"

namespace vantor::win32 {

namespace {

HWND HandleOf(service::WindowId window) { return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window)); }

service::WindowId IdOf(HWND window) { return service::WindowId{reinterpret_cast<std::uintptr_t>(window)}; }

}  // namespace

void WindowPicker::SetCapture(service::WindowId window) { ::SetCapture(HandleOf(window)); }

service::WindowId WindowPicker::GetCapture() { return IdOf(::GetCapture()); }

void WindowPicker::ReleaseCapture() { ::ReleaseCapture(); }

service::ScreenPoint WindowPicker::GetCursorPos() {
  POINT point = {};
  ::GetCursorPos(&point);
  return {point.x, point.y};
}

service::WindowId WindowPicker::WindowFromPoint(service::ScreenPoint point) {
  return IdOf(::WindowFromPoint({point.X, point.Y}));
}

bool WindowPicker::LeftButtonDown() { return GetAsyncKeyState(VK_LBUTTON) != 0; }

std::uint32_t WindowPicker::ProcessOfWindow(service::WindowId window) {
  DWORD process = 0;
  GetWindowThreadProcessId(HandleOf(window), &process);
  return process;
}

void WindowPicker::ShowTarget(bool target) { SetCursor(LoadCursorW(nullptr, target ? IDC_CROSS : IDC_ARROW)); }

void WindowPicker::Mark(service::WindowId window) { mark_.Show(HandleOf(window)); }

}  // namespace vantor::win32
