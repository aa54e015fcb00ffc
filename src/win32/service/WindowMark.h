#pragma once

#include <windows.h>

#include <array>

#include "win32/base/Handle.h"

namespace vantor::win32 {

/// A frame around a window of any program, consisting of four windows that let the mouse through. Nothing is drawn on
/// the marked window itself.
class WindowMark {
 public:
  WindowMark() = default;
  WindowMark(const WindowMark&) = delete;
  WindowMark& operator=(const WindowMark&) = delete;

  /// Frames the top-level window that contains `window`; the desktop, or null, removes the frame.
  void Show(HWND window);

 private:
  void Place(const RECT& around);
  void Remove();

  std::array<WindowHandle, 4> bars_;
  RECT around_ = {};
};

}  // namespace vantor::win32
