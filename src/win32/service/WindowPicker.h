#pragma once

#include "service/WindowPicker.h"
#include "win32/service/WindowMark.h"

namespace vantor::win32 {

class WindowPicker final : public service::WindowPicker {
 public:
  void SetCapture(service::WindowId window) override;
  [[nodiscard]] service::WindowId GetCapture() override;
  void ReleaseCapture() override;

  [[nodiscard]] service::ScreenPoint GetCursorPos() override;
  [[nodiscard]] service::WindowId WindowFromPoint(service::ScreenPoint point) override;
  [[nodiscard]] bool LeftButtonDown() override;
  [[nodiscard]] std::uint32_t ProcessOfWindow(service::WindowId window) override;

  /// The cursor stays changed only while the mouse is captured; otherwise each window sets its own.
  void ShowTarget(bool target) override;
  void Mark(service::WindowId window) override;

 private:
  WindowMark mark_;
};

}  // namespace vantor::win32
