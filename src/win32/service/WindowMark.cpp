#include "win32/service/WindowMark.h"

#include <algorithm>

namespace vantor::win32 {

namespace {

constexpr const wchar_t* ClassName = L"VantorMark";
constexpr int Thickness = 4;  // pixels at 96 dots per inch

LRESULT CALLBACK BarProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != WM_ERASEBKGND) return DefWindowProcW(window, message, wParam, lParam);
  // Two colours, so that one of them stands out from any background.
  const auto dc = reinterpret_cast<HDC>(wParam);
  RECT area;
  GetClientRect(window, &area);
  const BrushHandle light(CreateSolidBrush(RGB(180, 200, 255)));
  FillRect(dc, &area, light.Get());
  const BrushHandle dark(CreateSolidBrush(RGB(0, 0, 128)));
  FrameRect(dc, &area, dark.Get());
  return 1;
}

HINSTANCE OwnModule() { return GetModuleHandleW(nullptr); }

/// May be called more than once.
void RegisterBarClass() {
  WNDCLASSW bar = {};
  bar.lpfnWndProc = BarProcedure;
  bar.hInstance = OwnModule();
  bar.hCursor = LoadCursorW(nullptr, IDC_CROSS);
  bar.lpszClassName = ClassName;
  RegisterClassW(&bar);
}

WindowHandle MakeBar() {
  // With both styles, mouse input and the search for the window under the mouse pass through.
  constexpr DWORD Style = WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE;
  WindowHandle bar(CreateWindowExW(Style, ClassName, L"", WS_POPUP | WS_DISABLED, 0, 0, 0, 0, nullptr, nullptr,
                                   OwnModule(), nullptr));
  if (bar) SetLayeredWindowAttributes(bar.Get(), 0, 255, LWA_ALPHA);
  return bar;
}

int ScaledThickness() {
  const MemoryDcHandle screen(CreateCompatibleDC(nullptr));
  return std::max(MulDiv(Thickness, GetDeviceCaps(screen.Get(), LOGPIXELSX), 96), 2);
}

}  // namespace

void WindowMark::Show(HWND window) {
  const HWND top = GetAncestor(window, GA_ROOT);
  RECT around;
  if (top == nullptr || top == GetDesktopWindow() || !GetWindowRect(top, &around)) {
    Remove();
  } else if (!bars_[0] || !EqualRect(&around, &around_)) {
    Place(around);
  }
}

void WindowMark::Place(const RECT& around) {
  if (!bars_[0]) {
    RegisterBarClass();
    for (WindowHandle& bar : bars_) bar = MakeBar();
  }
  around_ = around;
  const int thickness = ScaledThickness();
  const int width = around.right - around.left;
  const int height = around.bottom - around.top;
  const auto place = [](const WindowHandle& bar, int left, int top, int barWidth, int barHeight) {
    SetWindowPos(bar.Get(), HWND_TOPMOST, left, top, barWidth, barHeight, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    UpdateWindow(bar.Get());
  };
  place(bars_[0], around.left, around.top, width, thickness);
  place(bars_[1], around.left, around.bottom - thickness, width, thickness);
  place(bars_[2], around.left, around.top, thickness, height);
  place(bars_[3], around.right - thickness, around.top, thickness, height);
}

void WindowMark::Remove() {
  for (WindowHandle& bar : bars_) bar.Reset();
}

}  // namespace vantor::win32
