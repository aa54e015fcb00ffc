#include "win32/window/ButtonWindow.h"

#include <oleacc.h>
#include <windowsx.h>

#include <string>

#include "win32/draw/Pictures.h"

namespace vantor::win32 {

namespace {

using form::Picture;

bool HasPictures(const form::CommandButton& button) {
  return button.Picture() != Picture::None || button.DownPicture() != Picture::None ||
         button.DisabledPicture() != Picture::None;
}

DWORD StyleOf(const form::CommandButton& button) { return HasPictures(button) ? BS_OWNERDRAW : BS_PUSHBUTTON; }

/// The window's text is what a screen reader calls the button; the system's own button also shows it.
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
  DrawFace(canvas, canvas.Whole(), colors, face, enabled && (item.itemState & ODS_FOCUS) != 0, Scale());
  DrawGlyph(canvas, button_.Picture(), canvas.Whole(), face.Text, Scale());

  RECT area{0, 0, size.cx, size.cy};
  if (!button_.Sign()) InflateRect(&area, -static_cast<int>(4 * Scale()), 0);
  canvas.Text(button_.Caption(), area, Font(button_.Sign()), face.Text,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
  canvas.Show(item.hDC, item.rcItem.left, item.rcItem.top);
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

LRESULT ButtonWindow::OnMouseButton(form::MouseButton button, bool down, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!down) {
    // Before the button lets go of the mouse, so that the program sees whether it still has it.
    button_.InputMouseUp(button);
    return Retired() ? 0 : Default(message, wParam, lParam);
  }
  const LRESULT result = Default(message, wParam, lParam);
  if (!Retired()) button_.InputMouseDown(button);
  return result;
}

LRESULT ButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDBLCLK:  // a second click like the first
      return OnMouseButton(form::MouseButton::Left, true, WM_LBUTTONDOWN, wParam, lParam);
    case WM_LBUTTONDOWN:
      return OnMouseButton(form::MouseButton::Left, true, message, wParam, lParam);
    case WM_LBUTTONUP:
      return OnMouseButton(form::MouseButton::Left, false, message, wParam, lParam);
    case WM_RBUTTONDOWN:
      return OnMouseButton(form::MouseButton::Right, true, message, wParam, lParam);
    case WM_RBUTTONUP:
      return OnMouseButton(form::MouseButton::Right, false, message, wParam, lParam);
    case WM_KEYDOWN:
      if (wParam == VK_RETURN) {
        const bool first = (HIWORD(lParam) & KF_REPEAT) == 0;
        if (first) button_.InputClick();
        return 0;
      }
      break;
    case WM_MOUSEMOVE: {
      // A button that is held is told of the mouse wherever that is, and not of its leaving.
      RECT inside;
      GetClientRect(Hwnd(), &inside);
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
