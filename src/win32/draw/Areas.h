#pragma once

#include <windows.h>

namespace vantor::win32 {

/// Where a window is on the screen, with its edges.
[[nodiscard]] inline RECT WindowArea(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

/// The same, relative to its own top left corner.
[[nodiscard]] inline RECT WholeArea(HWND window) {
  RECT area = WindowArea(window);
  OffsetRect(&area, -area.left, -area.top);
  return area;
}

/// A window's inside, whose top left corner is (0, 0).
[[nodiscard]] inline RECT ClientArea(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return area;
}

/// The screen that most of a window is on; the nearest one if it is on none.
[[nodiscard]] inline MONITORINFO MonitorOf(HWND window) {
  MONITORINFO monitor{sizeof monitor};
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor;
}

}  // namespace vantor::win32
