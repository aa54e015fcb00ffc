#include "win32/window/ButtonWindow.h"

#include <windowsx.h>

#include <algorithm>
#include <string>

#include "form/Static.h"
#include "win32/draw/Pictures.h"

namespace vantor::win32 {

namespace {

using form::Picture;

/// Whether a caption is a sign rather than a word; signs are drawn bold.
bool IsSign(const std::wstring& caption) {
  return caption.size() == 1 || (caption.size() == 2 && IsCharAlphaW(caption[0]) == FALSE);
}

bool HasPictures(const form::CommandButton& button) {
  return button.Picture() != Picture::None || button.DownPicture() != Picture::None ||
         button.DisabledPicture() != Picture::None;
}

DWORD StyleOf(const form::CommandButton& button) { return HasPictures(button) ? BS_OWNERDRAW : BS_PUSHBUTTON; }

/// The window's text is what a screen reader calls the button; the system's own button also shows it.
std::wstring NameOf(const form::CommandButton& button) {
  std::wstring name = button.AccessibleName();
  if (name.empty() && button.FaceLabel() != nullptr) name = button.FaceLabel()->Caption();
  if ((name.empty() || !HasPictures(button)) && !button.Caption().empty()) name = button.Caption();
  return name;
}

bool IsGround(Picture picture) {
  return picture == Picture::ButtonNormal || picture == Picture::ButtonPressed || picture == Picture::ButtonDisabled ||
         picture == Picture::ButtonOpen;
}

}  // namespace

ButtonWindow::ButtonWindow(FormWindow& owner, form::CommandButton& button)
    : ControlWindow(owner, button, {L"BUTTON", WS_TABSTOP | StyleOf(button), NameOf(button)}), button_(button) {
  for (form::Control* control : owner.Form().Controls()) {
    if (control == button_.FaceLabel()) control->AttachWindow(&faceLabel_);
  }
}

bool ButtonWindow::IsOnFace(const form::Control& control) {
  const auto& controls = control.OwnerForm().Controls();
  return std::any_of(controls.begin(), controls.end(), [&](const form::Control* other) {
    return other->Kind() == form::ControlKind::CommandButton &&
           static_cast<const form::CommandButton*>(other)->FaceLabel() == &control;
  });
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
  Picture picture = button_.Picture();
  if (!enabled && button_.DisabledPicture() != Picture::None) picture = button_.DisabledPicture();
  if (pressed && button_.DownPicture() != Picture::None) picture = button_.DownPicture();

  const Palette& colors = Look().Colors();
  const Palette::Face& face = !enabled                         ? colors.Disabled
                              : pressed                        ? colors.Pressed
                              : picture == Picture::ButtonOpen ? colors.Open
                              : hot_                           ? colors.Hot
                                                               : colors.Normal;
  Canvas canvas(size.cx, size.cy);
  DrawBackdrop(canvas);
  DrawFace(canvas, canvas.Whole(), colors, face, enabled && (item.itemState & ODS_FOCUS) != 0, Scale());
  DrawGlyph(canvas, IsGround(picture) ? button_.Picture() : picture, canvas.Whole(), colors, face.Ink, Scale());

  const form::Label* const label = button_.FaceLabel();
  const std::wstring& caption = label != nullptr ? label->Caption() : button_.Caption();
  const bool bold = (label != nullptr && label->Bold()) || IsSign(caption);
  RECT area{0, 0, size.cx, size.cy};
  if (!IsSign(caption)) InflateRect(&area, -static_cast<int>(4 * Scale()), 0);
  canvas.Text(caption, area, Font(bold), face.Ink, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
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
