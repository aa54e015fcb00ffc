#include "desktop/Window.h"

#include <algorithm>
#include <tuple>

#include "desktop/Text.h"

namespace vantor::desktop::window {
namespace {

constexpr UINT PatienceMilliseconds = 2000;  // with a program that does not answer

BOOL CALLBACK Collect(HWND window, LPARAM list) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

}  // namespace

std::string Text(HWND window) {
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, PatienceMilliseconds, &length);
  std::wstring text(length + 1, L'\0');
  length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                      PatienceMilliseconds, &length);
  text.resize(length);
  return Narrow(text);
}

std::string ClassName(HWND window) {
  wchar_t name[64];
  return Narrow(std::wstring(name, static_cast<std::size_t>(GetClassNameW(window, name, 64))));
}

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

std::vector<HWND> OfProcess(DWORD process) {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [process](HWND window) { return ProcessOf(window) != process; });
  return windows;
}

std::vector<HWND> Controls(HWND window) {
  std::vector<HWND> controls;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

HWND Control(HWND window, const std::string& className, const std::string& textBegin) {
  for (HWND control : Controls(window)) {
    if (_stricmp(ClassName(control).c_str(), className.c_str()) == 0 && Text(control).starts_with(textBegin)) {
      return control;
    }
  }
  return nullptr;
}

std::vector<HWND> OfClass(HWND window, const std::string& className) {
  auto controls = Controls(window);
  std::erase_if(controls, [&](HWND control) { return ClassName(control) != className; });
  std::sort(controls.begin(), controls.end(), [](HWND a, HWND b) {
    const RECT left = Bounds(a);
    const RECT right = Bounds(b);
    return std::tie(left.left, left.top) < std::tie(right.left, right.top);
  });
  return controls;
}

bool IsFrame(HWND control) {
  return ClassName(control) == "Button" && (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

RECT Bounds(HWND window) {
  RECT bounds = {};
  GetWindowRect(window, &bounds);
  return bounds;
}

POINT Middle(HWND window) {
  const RECT bounds = Bounds(window);
  return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

HWND FocusOf(HWND window) {
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread) ? thread.hwndFocus : nullptr;
}

COLORREF Ground(HWND control) {
  constexpr LONG Inside = 4;  // pixels, past the edge
  const HDC screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, Bounds(control).left + Inside, Middle(control).y);
  ReleaseDC(nullptr, screen);
  return color;
}

HWND Focus(HWND window) {
  if (!window || GetForegroundWindow() != window) return nullptr;
  const HWND focus = FocusOf(window);
  return focus == window || IsChild(window, focus) ? focus : nullptr;
}

bool HasInput(HWND window) { return Focus(window) != nullptr; }

bool IsTopMost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

bool IsAbove(HWND upper, HWND lower) {
  for (HWND window = upper; window; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == lower) return true;
  }
  return false;
}

}  // namespace vantor::desktop::window
