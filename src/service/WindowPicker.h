#pragma once

#include <cstdint>

namespace vantor::service {

/// A window of any program, identified by the system's handle.
enum class WindowId : std::uintptr_t { None = 0 };

/// A point on the desktop in pixels.
struct ScreenPoint {
  std::int32_t X = 0;
  std::int32_t Y = 0;
};

/// The mouse, and the windows of all programs under it.
class WindowPicker {
 public:
  virtual ~WindowPicker() = default;

  /// Sends all mouse input to one of the program's own windows, wherever the cursor is.
  virtual void SetCapture(WindowId window) = 0;
  [[nodiscard]] virtual WindowId GetCapture() = 0;
  virtual void ReleaseCapture() = 0;

  [[nodiscard]] virtual ScreenPoint GetCursorPos() = 0;
  [[nodiscard]] virtual WindowId WindowFromPoint(ScreenPoint point) = 0;
  [[nodiscard]] virtual bool LeftButtonDown() = 0;
  /// The process that a window belongs to; 0 if there is no such window.
  [[nodiscard]] virtual std::uint32_t ProcessOfWindow(WindowId window) = 0;

  /// Turns the cursor into a target, or back into the usual one.
  virtual void ShowTarget(bool target) = 0;
  /// Draws a frame around the top-level window that contains `window` and removes the previous frame. None only removes
  /// it.
  virtual void Mark(WindowId window) = 0;
};

}  // namespace vantor::service
