// The smallest possible bar with a text box, for comparison with Vantor.exe.

#include <windows.h>

#include <string>

namespace {

constexpr COLORREF LineBlue = RGB(180, 200, 255);

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  static HBRUSH const brush = CreateSolidBrush(LineBlue);
  switch (message) {
    case WM_CTLCOLOREDIT:
      SetBkColor(reinterpret_cast<HDC>(wParam), LineBlue);
      return reinterpret_cast<LRESULT>(brush);
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = instance;
  windowClass.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
  windowClass.lpszClassName = L"Floor";
  RegisterClassW(&windowClass);
  const std::wstring title = L"Floor";
  HWND const window = CreateWindowExW(WS_EX_TOPMOST | WS_EX_APPWINDOW, L"Floor", title.c_str(), WS_POPUP, 0, 0, 560, 32,
                                      nullptr, nullptr, instance, nullptr);
  HWND const edit = CreateWindowExW(0, L"EDIT", L"Floor", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 150, 4, 260, 24,
                                    window, nullptr, instance, nullptr);
  ShowWindow(window, SW_SHOW);
  SetFocus(edit);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
