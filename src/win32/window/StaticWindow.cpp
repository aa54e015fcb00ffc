#include "win32/window/StaticWindow.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "win32/draw/Pictures.h"

namespace vantor::win32 {

namespace {

std::wstring CaptionOf(const form::Control& control) {
  const bool isLabel = control.Kind() == form::ControlKind::Label;
  return isLabel ? static_cast<const form::Label&>(control).Caption() : std::wstring();
}

}  // namespace

StaticWindow::StaticWindow(FormWindow& owner, form::Control& control)
    : ControlWindow(owner, control, {L"STATIC", SS_NOTIFY, CaptionOf(control)}) {}

void StaticWindow::Show(form::Property property) {
  if (property == form::Property::Caption) ShowWindowText(CaptionOf(Control()));
  Redraw();
}

void StaticWindow::Paint(Canvas& canvas) {
  DrawBackdrop(canvas);
  switch (Control().Kind()) {
    case form::ControlKind::Label: {
      const auto& label = static_cast<const form::Label&>(Control());
      if (!label.Transparent()) canvas.Clear(Ground());
      canvas.Text(label.Caption(), {0, 0, canvas.Width(), canvas.Height()}, Font(label.Bold()),
                  Look().Ink(label.ForeColor(), label.Enabled()), DT_WORDBREAK);
      break;
    }
    default:
      DrawPicture(canvas, ShownPicture(), canvas.Whole(), Look().Colors(), Scale());
      break;
  }
}

LRESULT StaticWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_MOUSEMOVE:
      Owner().MouseMoves(wParam);
      return 0;
    default:
      return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

FrameWindow::FrameWindow(FormWindow& owner, form::Frame& frame)
    : ControlWindow(owner, frame, {L"BUTTON", BS_GROUPBOX | WS_CLIPCHILDREN, frame.Caption()}), frame_(frame) {}

void FrameWindow::Show(form::Property property) {
  if (property == form::Property::Caption) ShowWindowText(frame_.Caption());
  Redraw();
}

void FrameWindow::Paint(Canvas& canvas) {
  DrawBackdrop(canvas);
  const COLORREF ground = Ground();
  if (!frame_.Border()) {
    canvas.Clear(ground);
    return;
  }
  Theme& look = Look();
  const HFONT font = Font();
  SIZE text{};
  const HGDIOBJ oldFont = SelectObject(canvas.Dc(), font);
  GetTextExtentPoint32W(canvas.Dc(), frame_.Caption().c_str(), static_cast<int>(frame_.Caption().size()), &text);
  SelectObject(canvas.Dc(), oldFont);
  const double line = std::max(std::floor(Scale()), 1.0);
  const LONG left = std::lround(8 * Scale());
  const LONG gap = std::lround(4 * Scale());
  if (frame_.BackColor() != form::Color::ButtonFace) {  // a banner, with its caption inside
    canvas.EdgedBox({0, 0, double(canvas.Width()), double(canvas.Height())}, 4 * Scale(), line, look.Colors().Line,
                    ground);
    canvas.Text(frame_.Caption(), {left + gap, 0, canvas.Width() - left, canvas.Height()}, font,
                look.Ink(frame_.ForeColor(), frame_.Enabled()), DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS);
    return;
  }
  const double top = frame_.Caption().empty() ? 0 : std::floor(text.cy / 2.0);
  canvas.EdgedBox({0, top, double(canvas.Width()), canvas.Height() - top}, 4 * Scale(), line, look.Colors().Line,
                  ground);
  if (frame_.Caption().empty()) return;
  // The caption interrupts the line, which it stands on: above the line is what is behind the frame.
  // What is drawn may be a little wider than what was measured.
  const double right = std::min<double>(left + text.cx * 1.05 + 2 * gap, canvas.Width() - left);
  canvas.Shade({double(left), top, right - left, line}, ground, ground);
  canvas.Text(frame_.Caption(), {left + gap, 0, static_cast<LONG>(right), text.cy}, font,
              look.Ink(frame_.ForeColor(), frame_.Enabled()), DT_SINGLELINE | DT_END_ELLIPSIS);
}

LRESULT FrameWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_PAINT:
      PaintWindow();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      pressed_ = true;
      pressedAt_ = point;
      SetCapture(Hwnd());  // a narrow gap between buttons is soon left
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
      return ControlWindow::OnMessage(message, wParam, lParam);
  }
}

/// A frame may be clicked, or the form may be dragged by it: the hand decides by moving.
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
