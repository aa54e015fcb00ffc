#include "win32/window/ControlWindow.h"

#include <optional>
#include <utility>

#include "form/Keys.h"
#include "win32/draw/Areas.h"
#include "win32/draw/Pictures.h"
#include "win32/draw/Screens.h"
#include "win32/window/Accessible.h"
#include "win32/window/AccessibleState.h"
#include "win32/window/ButtonWindow.h"
#include "win32/window/ChoiceWindow.h"
#include "win32/window/ComboWindow.h"
#include "win32/window/CommonControls.h"
#include "win32/window/ControlId.h"
#include "win32/window/EditWindow.h"
#include "win32/window/ListWindow.h"
#include "win32/window/RowListWindow.h"
#include "win32/window/StaticWindow.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

namespace {

HWND ParentOf(const FormWindow& owner, const form::Control& control) {
  const ControlWindow* const container = ControlWindow::Of(control.Container());
  return container != nullptr ? container->Hwnd() : owner.Hwnd();
}

/// Creates the kind of window that a control needs.
class Maker final : public form::ControlVisitor {
 public:
  explicit Maker(FormWindow& owner) : owner_(owner) {}

  std::unique_ptr<ControlWindow> Made;

  void Visit(form::TextBox& box) override { Make<EditWindow>(box); }
  void Visit(form::CommandButton& button) override { Make<ButtonWindow>(button); }
  void Visit(form::CheckBox& box) override { Make<CheckWindow>(box); }
  void Visit(form::OptionButton& button) override { Make<OptionWindow>(button); }
  void Visit(form::DropDownList& list) override { Make<ComboWindow>(list); }
  void Visit(form::OpenList& list) override { Make<ListWindow>(list); }
  void Visit(form::Label& label) override { Make<LabelWindow>(label); }
  void Visit(form::Frame& frame) override { Make<FrameWindow>(frame); }
  void Visit(form::PictureControl& picture) override { Make<PictureWindow>(picture); }
  void Visit(form::RowList& list) override { Make<RowListWindow>(list); }

 private:
  template <class Window, class Control>
  void Make(Control& control) {
    Made = std::make_unique<Window>(owner_, control);
  }

  FormWindow& owner_;
};

}  // namespace

std::unique_ptr<ControlWindow> ControlWindow::Make(FormWindow& owner, form::Control& control) {
  Maker maker(owner);
  control.Accept(maker);
  control.AttachWindow(maker.Made.get());
  maker.Made->Refresh();
  return std::move(maker.Made);
}

ControlWindow::ControlWindow(FormWindow& owner, form::Control& control, const Kind& kind)
    : owner_(owner), control_(control), placed_(BoundsInPixels()), shownText_(kind.Text) {
  const DWORD state = WS_VISIBLE | (control_.Enabled() ? 0 : WS_DISABLED);
  std::optional<CommonControls> version6;
  if (kind.Themed) version6.emplace();
  handle_ = CreateWindowExW(0, kind.ClassName, kind.Text.c_str(), WS_CHILD | WS_CLIPSIBLINGS | state | kind.Style,
                            placed_.left, placed_.top, placed_.right, placed_.bottom, ParentOf(owner, control),
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(ControlId(control.Name()))),
                            GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  classProcedure_ =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

const ControlWindow* ControlWindow::Of(const form::Control* control) {
  const bool has = control != nullptr && control->Window() != nullptr && control->Window()->Handle() != 0;
  return has ? static_cast<const ControlWindow*>(control->Window()) : nullptr;
}

ControlWindow* ControlWindow::From(HWND handle) {
  if (handle == nullptr) return nullptr;
  // Usually no other procedure has been installed over this one, and the answer is at hand.
  if (reinterpret_cast<WNDPROC>(GetWindowLongPtrW(handle, GWLP_WNDPROC)) == Procedure) {
    return reinterpret_cast<ControlWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  }
  const FormWindow* const form = FormWindow::From(GetAncestor(handle, GA_ROOT));
  return form != nullptr ? form->Find(handle) : nullptr;
}

LRESULT CALLBACK ControlWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto& window = *reinterpret_cast<ControlWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (message == WM_NCDESTROY) {
    window.handle_ = nullptr;
    return CallWindowProcW(window.classProcedure_, handle, message, wParam, lParam);
  }
  if (window.Retired()) return window.Default(message, wParam, lParam);
  const auto handling = window.owner_.Handling();
  LRESULT result = 0;
  window.owner_.Desktop().Guard([&] { result = window.OnMessage(message, wParam, lParam); });
  return result;
}

std::optional<LRESULT> ControlWindow::Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
  HWND sender = reinterpret_cast<HWND>(lParam);
  switch (message) {
    case WM_DRAWITEM:
      sender = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem;
      break;
    case WM_COMMAND:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
      break;
    default:
      return {};
  }
  ControlWindow* const control = From(sender);
  if (control == nullptr) return {};
  if (message == WM_COMMAND) {
    control->OnCommand(HIWORD(wParam));
    return 0;
  }
  if (message != WM_DRAWITEM) return reinterpret_cast<LRESULT>(control->OnColor(reinterpret_cast<HDC>(wParam)));
  control->OnDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
  return TRUE;
}

LRESULT ControlWindow::Default(UINT message, WPARAM wParam, LPARAM lParam) const {
  return CallWindowProcW(classProcedure_, handle_, message, wParam, lParam);
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto result = Reflect(message, wParam, lParam)) return *result;
  switch (message) {
    case WM_SETFOCUS: {
      const LRESULT result = Default(message, wParam, lParam);
      if (!Retired()) owner_.Form().InputFocus(&control_);
      return result;
    }
    case WM_GETOBJECT:
      if (const auto answer = AnswerAccessibility(handle_, owner_.Desktop().Com(), wParam, lParam)) return *answer;
      break;
    default:
      break;
  }
  return Default(message, wParam, lParam);
}

void ControlWindow::Changed(form::Property property) {
  switch (property) {
    case form::Property::Bounds:
      ApplyBounds();
      break;
    case form::Property::Visible:
      if (!control_.Visible()) LeaveFocus();
      ShowWindow(handle_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
      break;
    case form::Property::Enabled:
      EnableWindow(handle_, control_.Enabled());
      if (!control_.Enabled()) LeaveFocus();
      Redraw();
      break;
    case form::Property::Colors:
      RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
      break;
    default:
      Show(property);
      break;
  }
}

/// A window that can't take the focus must not keep it.
void ControlWindow::LeaveFocus() const {
  const HWND focus = GetFocus();
  if (focus == handle_ || IsChild(handle_, focus) != FALSE) ::SetFocus(owner_.Hwnd());
}

void ControlWindow::TakeFocus() {
  if (IsWindowVisible(handle_) != FALSE && GetFocus() != handle_) ::SetFocus(handle_);
}

AccessibleState ControlWindow::DescribePart(long /*part*/) const { return {}; }

void ControlWindow::PaintNow() { UpdateWindow(handle_); }

void ControlWindow::Refresh() {
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(Font()), FALSE);
  ApplyBounds();
}

RECT ControlWindow::BoundsInPixels() const {
  const form::Rect& bounds = control_.Bounds();
  return {Pixels(bounds.Left), Pixels(bounds.Top), Pixels(bounds.Width), Pixels(bounds.Height)};
}

void ControlWindow::ApplyBounds() {
  const RECT place = BoundsInPixels();
  if (EqualRect(&place, &placed_) != FALSE) return;
  placed_ = place;
  SetWindowPos(handle_, nullptr, place.left, place.top, place.right, place.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
}

HBRUSH ControlWindow::OnColor(HDC dc) {
  const COLORREF background = BackgroundColor();
  SetTextColor(dc, TextColor());
  SetBkColor(dc, background);
  return Theme().Brush(background);
}

bool ControlWindow::OnEnter(UINT message, WPARAM key, LPARAM how) {
  if (message != WM_KEYDOWN || key != VK_RETURN) return false;
  if ((HIWORD(how) & KF_REPEAT) == 0) control_.InputCharacter(form::CharEnter);
  return true;
}

const Theme& ControlWindow::Theme() const { return owner_.Desktop().Theme(); }

SIZE ControlWindow::ClientSize() const {
  const RECT area = ClientArea(handle_);
  return {area.right, area.bottom};
}

int ControlWindow::Pixels(form::Twips twips) const { return Screens::ToPixels(twips, owner_.Dpi()); }

HFONT ControlWindow::Font(FontStyle style) const { return Theme().Font(owner_.Dpi(), style); }

void ControlWindow::PostClick() const {
  PostMessageW(GetParent(handle_), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED), reinterpret_cast<LPARAM>(handle_));
}

void ControlWindow::ShowWindowText(const std::wstring& text) {
  if (text == shownText_) return;
  shownText_ = text;
  SetWindowTextW(handle_, text.c_str());
}

void ControlWindow::Announce(DWORD event) const { NotifyWinEvent(event, handle_, OBJID_CLIENT, CHILDID_SELF); }

void ControlWindow::Redraw() const { InvalidateRect(handle_, nullptr, TRUE); }

COLORREF ControlWindow::BackgroundColor() const {
  for (const form::Control* control = &control_; control != nullptr; control = control->Container()) {
    // A default background takes on the colour of the container.
    if (control->BackColor() != form::Color::ButtonFace) return Theme().Background(control->BackColor());
  }
  return Theme().Background(owner_.Form().BackColor());
}

COLORREF ControlWindow::TextColor() const {
  return Theme().TextColor(control_.ForeColor(), control_.Enabled(), BackgroundColor());
}

COLORREF ControlWindow::EdgeColor() const {
  const Palette& colors = Theme().Colors();
  if (!control_.Enabled()) return control_.BackColor() == form::Color::Silver ? colors.Line : colors.Disabled.Edge;
  if (GetFocus() == handle_) return colors.Focus;
  return control_.BackColor() == form::Color::LineBlue ? colors.Open.Edge : colors.Line;  // darker on the accent
}

LRESULT ControlWindow::OnMessageWithEdge(UINT message, WPARAM wParam, LPARAM lParam, int thickness) {
  const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
  const bool drawn = message == WM_PAINT || message == WM_NCPAINT || message == WM_ENABLE || message == WM_SETFOCUS ||
                     message == WM_KILLFOCUS;
  if (!drawn || Retired()) return result;
  RECT edge = WholeArea(handle_);
  const WindowDc dc(handle_);
  const HBRUSH brush = Theme().Brush(EdgeColor());
  for (; thickness > 0; --thickness) {
    FrameRect(dc.Get(), &edge, brush);
    InflateRect(&edge, -1, -1);
  }
  return result;
}

void ControlWindow::DrawBackdrop(Canvas& canvas) const {
  const form::Control* const container = control_.Container();
  COLORREF background = Theme().Background(owner_.Form().BackColor());
  if (const ControlWindow* window = Of(container)) background = window->BackgroundColor();
  canvas.Clear(background);
  const RECT place = WindowArea(handle_);
  const POINT here{place.left, place.top};
  if (owner_.Form().BorderStyle() == form::BorderStyle::Line) {
    DrawWindowEdge(canvas, Box::Of(WindowArea(owner_.Hwnd()), here), Theme().Colors(), background, Scale());
  }
  for (const form::Control* other : owner_.Form().Controls()) {
    if (other == &control_) break;  // later ones are in front of it
    const bool below = other == container || (other->Container() == container && other->Visible());
    const ControlWindow* const window = Of(other);
    if (!below || window == nullptr) continue;
    const form::Picture picture = window->ShownPicture();
    if (picture.Empty()) continue;
    DrawPicture(canvas, picture, Box::Of(WindowArea(window->Hwnd()), here), Theme().Colors(), Scale());
  }
}

}  // namespace vantor::win32
