#pragma once

// Shared by the programs that measure the bar from outside.

#include <windows.h>

constexpr COLORREF LineBlue = RGB(180, 200, 255);
constexpr double PatienceMs = 30000;

inline double NowMs() {
  LARGE_INTEGER counter;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&counter);
  QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

struct Search {
  DWORD Process;
  HWND Edit;
};

inline BOOL CALLBACK FindEdit(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  wchar_t className[32] = L"";
  GetClassNameW(window, className, 32);
  if (lstrcmpiW(className, L"EDIT") != 0 || !IsWindowVisible(window)) return TRUE;
  search.Edit = window;
  return FALSE;
}

inline BOOL CALLBACK FindBar(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.Process || !IsWindowVisible(window)) return TRUE;
  EnumChildWindows(window, FindEdit, parameter);
  return search.Edit == nullptr;
}

/// The visible text box of a process; null while it has none.
inline HWND EditOf(DWORD process) {
  Search search{process, nullptr};
  EnumWindows(FindBar, reinterpret_cast<LPARAM>(&search));
  return search.Edit;
}

/// Whether the process's text box shows its background on the screen: light blue, or the system's window colour.
inline bool HasPainted(DWORD process, HDC screen) {
  HWND const edit = EditOf(process);
  RECT place;
  if (edit == nullptr || !GetWindowRect(edit, &place)) return false;
  // To the right of the text that the box starts with.
  const COLORREF seen = GetPixel(screen, place.right - (place.right - place.left) / 4, (place.top + place.bottom) / 2);
  return seen == LineBlue || seen == GetSysColor(COLOR_WINDOW);
}
