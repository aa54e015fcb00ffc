#pragma once

#include <windows.h>

#include <array>

#include "win32/base/Handle.h"

namespace vantor::win32 {

/// A frame around a window of any program, made of four windows of our own that the mouse does not feel: the
/// marked window is never drawn upon.
class WindowMark {
 public:
  WindowMark() = default;
  WindowMark(const WindowMark&) = delete;
  WindowMark& operator=(const WindowMark&) = delete;

  /// Frames the top-level window that holds `window`; the desktop, or null, takes the frame away.
  void Show(HWND window);

 private:
  void Place(const RECT& around);
  void Remove();

  std::array<WindowHandle, 4> bars_;
  RECT around_ = {};
};

}  // namespace vantor::win32
