#include "win32/window/StaticWindow.h"

#include <oleacc.h>
#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "win32/draw/Pictures.h"
#include "win32/draw/Prose.h"

namespace vantor::win32 {

void LabelWindow::Show(form::Property property) {
  if (property == form::Property::Caption) ShowWindowText(label_.Caption());
  Redraw();
}

void LabelWindow::Paint(Canvas& canvas) {
  DrawBackdrop(canvas);
  const HFONT font = Font(label_.Bold() ? FontStyle::Bold : FontStyle::Plain);
  if (label_.OneLine()) {
    canvas.Text(label_.Caption(), {0, 0, canvas.Width(), canvas.Height()}, font, TextColor(),
                DT_SINGLELINE | DT_END_ELLIPSIS);
  } else {
    Prose(label_.Caption(), font, canvas.Width()).Draw(canvas.Dc(), {}, canvas.Height(), TextColor());
  }
}

void LabelWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_STATICTEXT;
  state.State |= STATE_SYSTEM_READONLY;
}

void PictureWindow::Paint(Canvas& canvas) {
  DrawBackdrop(canvas);
  DrawPicture(canvas, picture_.Picture(), canvas.Whole(), Theme().Colors(), Scale());
}

void PictureWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_GRAPHIC;
  if (picture_.Picture().Empty()) state.State |= STATE_SYSTEM_INVISIBLE;
}

LRESULT StaticWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      Owner().Form().InputMouseDown();
      return 0;
    case WM_MOUSEMOVE:
      Owner().MouseMoves(wParam);
      return 0;
    default:
      return PaintedWindow::OnMessage(message, wParam, lParam);
  }
}

FrameWindow::FrameWindow(FormWindow& owner, form::Frame& frame)
    : PaintedWindow(owner, frame, {L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN, frame.Caption()}), frame_(frame) {}

void FrameWindow::Show(form::Property property) {
  if (property == form::Property::Caption) ShowWindowText(frame_.Caption());
  Redraw();
}

void FrameWindow::Describe(AccessibleState& state) const {
  state.Role = frame_.Banner() ? ROLE_SYSTEM_ALERT : frame_.Border() ? ROLE_SYSTEM_GROUPING : ROLE_SYSTEM_PANE;
}

void FrameWindow::Paint(Canvas& canvas) {
  DrawBackdrop(canvas);
  const COLORREF background = BackgroundColor();
  if (!frame_.Border()) {
    if (frame_.BackColor() != form::Color::ButtonFace) canvas.Clear(background);
    return;
  }
  if (const auto& place = frame_.CaptionAlone()) {
    canvas.Text(frame_.Caption(), {Pixels(place->Left), Pixels(place->Top), canvas.Width(), canvas.Height()}, Font(),
                TextColor(), DT_SINGLELINE | DT_END_ELLIPSIS);
    return;
  }
  if (frame_.Banner()) {
    PaintBanner(canvas);
    return;
  }
  const SIZE text = frame_.Caption().empty() ? SIZE{} : TextSize(frame_.Caption(), Font());
  const double line = LineThickness();
  const double top = std::floor(text.cy / 2.0);
  canvas.EdgedBox({0, top, double(canvas.Width()), canvas.Height() - top}, 4 * Scale(), line, Theme().Colors().Line,
                  background);
  if (frame_.Caption().empty()) return;
  // The caption interrupts the line, on which it is centred: above the line, the frame's surroundings show through.
  const LONG left = std::lround(8 * Scale());
  const LONG gap = std::lround(4 * Scale());
  const LONG right = std::min(left + text.cx + 2 * gap, canvas.Width() - left);
  canvas.Shade({double(left), top, double(right - left), line}, background, background);
  Prose(frame_.Caption(), Font(), right - left).Draw(canvas.Dc(), {left + gap, 0}, text.cy, TextColor());
}

void FrameWindow::PaintBanner(Canvas& canvas) const {
  canvas.EdgedBox(canvas.Whole(), 4 * Scale(), LineThickness(), Theme().Colors().Line, BackgroundColor());
  const LONG margin = std::lround(12 * Scale());
  canvas.Text(frame_.Caption(), {margin, 0, canvas.Width() - std::lround(8 * Scale()), canvas.Height()}, Font(),
              TextColor(), DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
}

LRESULT FrameWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      Owner().Form().InputMouseDown();
      pressed_ = true;
      pressedAt_ = point;
      SetCapture(Hwnd());  // the mouse soon leaves a narrow gap between buttons
      return 0;
    case WM_LBUTTONUP:
      return OnRelease();
    case WM_CAPTURECHANGED:
      pressed_ = false;
      return 0;
    case WM_MOUSEMOVE:
      return OnMouseMove(wParam, point);
    case WM_NCHITTEST:
      return HTCLIENT;  // a group box lets the mouse through
    default:
      return PaintedWindow::OnMessage(message, wParam, lParam);
  }
}

/// A frame can be clicked, and the form can be dragged by it: it is a drag if the mouse moves.
LRESULT FrameWindow::OnMouseMove(WPARAM buttons, POINT point) {
  if ((buttons & MK_LBUTTON) == 0) pressed_ = false;
  if (pressed_) {
    const bool moved = std::abs(point.x - pressedAt_.x) >= GetSystemMetrics(SM_CXDRAG) ||
                       std::abs(point.y - pressedAt_.y) >= GetSystemMetrics(SM_CYDRAG);
    if (!moved) return 0;
    ReleaseCapture();
  }
  Owner().MouseMoves(buttons);
  return 0;
}

LRESULT FrameWindow::OnRelease() {
  if (!pressed_) return 0;
  ReleaseCapture();
  frame_.InputClick();
  return 0;
}

}  // namespace vantor::win32
