#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "driver/Desktop.h"

/// Windows of other programs, looked at from outside. Only what is shown is found.
namespace vantor::desktop::window {

/// A window of this program, which is another one for Vantor. It is hidden at first.
inline HWND Make(DWORD style, POINT at, SIZE size) {
  return CreateWindowExW(style, L"STATIC", L"", WS_POPUP | SS_NOTIFY, at.x, at.y, size.cx, size.cy, nullptr, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

/// The title of a window or the content of a control; "" from a program that does not answer.
inline std::wstring Text(HWND window) {
  constexpr UINT Patience = 2000;  // milliseconds
  std::wstring text(0x8000, L'\0');
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                      Patience, &length);
  text.resize(length);
  return text;
}

inline std::wstring ClassName(HWND window) {
  wchar_t name[64];
  return {name, static_cast<std::size_t>(GetClassNameW(window, name, 64))};
}

inline DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

inline BOOL CALLBACK Collect(HWND window, LPARAM list) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

/// The top-level windows of a process, minimised ones too.
inline std::vector<HWND> OfProcess(DWORD process) {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [process](HWND window) { return ProcessOf(window) != process; });
  return windows;
}

/// The controls of a window, in its own order.
inline std::vector<HWND> Controls(HWND window) {
  std::vector<HWND> controls;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

inline RECT Bounds(HWND window) {
  RECT bounds = {};
  GetWindowRect(window, &bounds);
  return bounds;
}

inline POINT Middle(HWND window) {
  const RECT bounds = Bounds(window);
  return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

inline GUITHREADINFO ThreadOf(HWND window) {
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
  return thread;
}
/// Whether Windows drags the window with the mouse.
inline bool IsDragged(HWND window) { return (ThreadOf(window).flags & GUI_INMOVESIZE) != 0; }

/// The control, or the window itself, that has the input; null when another window is in the foreground.
inline HWND Focus(HWND window) {
  if (!window || GetForegroundWindow() != window) return nullptr;
  HWND const focus = ThreadOf(window).hwndFocus;
  return focus == window || IsChild(window, focus) ? focus : nullptr;
}

/// The list of a combo box, dropped down or not; null for any other window.
inline HWND DropDownOf(HWND window) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof info;
  return GetComboBoxInfo(window, &info) ? info.hwndList : nullptr;
}

inline bool IsTopMost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

/// Whether the first window is above the second in the z-order.
inline bool IsAbove(HWND upper, HWND lower) {
  for (HWND window = upper; window; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == lower) return true;
  }
  return false;
}

}  // namespace vantor::desktop::window
