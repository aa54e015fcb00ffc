#include "win32/window/ButtonWindow.h"

#include <oleacc.h>
#include <windowsx.h>

#include <cmath>
#include <string>

#include "win32/draw/Areas.h"
#include "win32/draw/Pictures.h"

namespace vantor::win32 {

namespace {

bool HasPictures(const form::CommandButton& button) {
  return !button.Picture().Empty() || !button.DownPicture().Empty() || !button.DisabledPicture().Empty();
}

DWORD StyleOf(const form::CommandButton& button) { return HasPictures(button) ? BS_OWNERDRAW : BS_PUSHBUTTON; }

/// The window's text is what a screen reader calls the button; a standard button also shows it.
std::wstring NameOf(const form::CommandButton& button) {
  std::wstring name = button.AccessibleName();
  if ((name.empty() || !HasPictures(button)) && !button.Caption().empty()) name = button.Caption();
  return name;
}

}  // namespace

ButtonWindow::ButtonWindow(FormWindow& owner, form::CommandButton& button)
    : ControlWindow(owner, button, {L"BUTTON", WS_TABSTOP | StyleOf(button), NameOf(button)}), button_(button) {}

void ButtonWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_PUSHBUTTON;
  state.Action = L"Press";
  switch (button_.State()) {
    case form::ButtonState::Plain:
      break;
    case form::ButtonState::Pressed:
      state.State |= STATE_SYSTEM_PRESSED;
      break;
    case form::ButtonState::Folded:
      state.State |= STATE_SYSTEM_COLLAPSED;
      break;
    case form::ButtonState::Unfolded:
      state.State |= STATE_SYSTEM_EXPANDED;
      break;
  }
}

void ButtonWindow::Show(form::Property property) {
  if (property != form::Property::Picture) {
    ShowWindowText(NameOf(button_));
  } else if (const DWORD style = StyleOf(button_);
             (GetWindowLongPtrW(Hwnd(), GWL_STYLE) & BS_TYPEMASK) != static_cast<LONG_PTR>(style)) {
    SendMessageW(Hwnd(), BM_SETSTYLE, style, FALSE);
  }
  if (property == form::Property::Picture) Announce(EVENT_OBJECT_STATECHANGE);
  Redraw();
}

void ButtonWindow::OnCommand(WORD notification) {
  if (notification == BN_CLICKED) button_.InputClick();
}

void ButtonWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const SIZE size{item.rcItem.right - item.rcItem.left, item.rcItem.bottom - item.rcItem.top};
  if (size.cx <= 0 || size.cy <= 0) return;
  const bool enabled = button_.Enabled();
  const bool pressed = enabled && (item.itemState & ODS_SELECTED) != 0;
  const Palette& colors = Theme().Colors();
  const Palette::Face& face = !enabled                                        ? colors.Disabled
                              : pressed                                       ? colors.Pressed
                              : button_.State() == form::ButtonState::Pressed ? colors.Open
                              : hot_                                          ? colors.Hot
                                                                              : colors.Normal;
  Canvas canvas(size.cx, size.cy);
  DrawBackdrop(canvas);
  const form::Margins& margins = button_.FaceMargins();
  const RECT area{Pixels(margins.Left), Pixels(margins.Top), size.cx - Pixels(margins.Right),
                  size.cy - Pixels(margins.Bottom)};
  const Box box = Box::Of(area);
  DrawFace(canvas, box, colors, face, enabled && (item.itemState & ODS_FOCUS) != 0, Scale());
  DrawContent(canvas, area, box, face);
  canvas.Show(item.hDC, item.rcItem.left, item.rcItem.top);
}

/// Draws a drawing, a caption, or a drawing with the caption below it.
void ButtonWindow::DrawContent(Canvas& canvas, RECT area, const Box& box, const Palette::Face& face) const {
  const Palette& colors = Theme().Colors();
  const form::Drawing drawing = button_.Picture().Drawing;
  const std::wstring& caption = button_.Caption();
  if (drawing.empty()) {
    InflateRect(&area, -static_cast<int>(4 * Scale()), 0);
    canvas.Text(caption, area, Font(FontStyle::Plain), face.Text,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    return;
  }
  const double side = Pixels(form::CommandButton::DrawingSide);
  const double above = caption.empty() ? std::round((box.Height - side) / 2) : Pixels(form::CommandButton::DrawingTop);
  const Box square{box.Left + std::round((box.Width - side) / 2), box.Top + above, side, side};
  DrawShapes(canvas, drawing, square, colors, face.Text, Scale());
  area.top = static_cast<LONG>(square.Top + square.Height);
  const COLORREF color = button_.Enabled() && !colors.HighContrast ? colors.Letter : face.Text;
  canvas.Text(caption, area, Font(FontStyle::Small), color, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP);
}

void ButtonWindow::SetHot(bool hot) {
  if (hot_ == hot) return;
  hot_ = hot;
  if (hot_) {
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, Hwnd(), 0};
    TrackMouseEvent(&track);
  }
  if (HasPictures(button_)) Redraw();
}

LRESULT ButtonWindow::OnMouseButton(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool left = message == WM_LBUTTONDOWN || message == WM_LBUTTONUP;
  const form::MouseButton button = left ? form::MouseButton::Left : form::MouseButton::Right;
  if (message == WM_LBUTTONUP || message == WM_RBUTTONUP) {
    // Before the button releases the mouse capture, so that the program sees whether it still has it.
    button_.InputMouseUp(button);
    return Retired() ? 0 : Default(message, wParam, lParam);
  }
  const LRESULT result = Default(message, wParam, lParam);
  if (!Retired()) button_.InputMouseDown(button);
  return result;
}

LRESULT ButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (OnEnter(message, wParam, lParam)) return 0;
  switch (message) {
    case WM_LBUTTONDBLCLK:
      return OnMouseButton(WM_LBUTTONDOWN, wParam, lParam);  // a second click like the first
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
      return OnMouseButton(message, wParam, lParam);
    case WM_MOUSEMOVE: {
      // While a button is held down, it gets all mouse messages, but none when the mouse leaves it.
      const RECT inside = ClientArea(Hwnd());
      SetHot(PtInRect(&inside, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) != FALSE);
      break;
    }
    case WM_MOUSELEAVE:
      SetHot(false);
      break;
    case WM_ERASEBKGND:
      if (HasPictures(button_)) return 1;
      break;
    default:
      break;
  }
  return ControlWindow::OnMessage(message, wParam, lParam);
}

}  // namespace vantor::win32
