#pragma once

#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A window that paints itself, all in one go, so that nothing flickers.
class PaintedWindow : public ControlWindow {
 protected:
  using ControlWindow::ControlWindow;

  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property /*property*/) override { Redraw(); }
  /// Paints the window onto the screen; by means of Paint unless overridden.
  virtual void PaintOn(HDC dc);
  /// Draws the whole window.
  virtual void Paint(Canvas& /*canvas*/) {}
};

}  // namespace vantor::win32
