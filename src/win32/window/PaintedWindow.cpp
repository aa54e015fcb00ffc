#include "win32/window/PaintedWindow.h"

namespace vantor::win32 {

LRESULT PaintedWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT: {
      PAINTSTRUCT paint;
      PaintOn(BeginPaint(Hwnd(), &paint));
      EndPaint(Hwnd(), &paint);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    default:
      return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

void PaintedWindow::PaintOn(HDC dc) {
  const SIZE size = ClientSize();
  if (size.cx <= 0 || size.cy <= 0) return;
  Canvas canvas(size.cx, size.cy);
  Paint(canvas);
  canvas.Show(dc);
}

}  // namespace vantor::win32
