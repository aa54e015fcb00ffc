#include "form/Form.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "form/Scoped.h"
#include "form/UserInterface.h"

namespace vantor::form {

Form::Form(UserInterface& ui, std::wstring_view name) : ui_(ui), name_(name) { ui_.forms_.push_back(this); }

Form::~Form() {
  std::erase(ui_.forms_, this);
  std::erase(ui_.modalForms_, this);
  ui_.FormGone(*this);
}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  Form_Load();
}

void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  Hide();
  Form_Unload();
  TakeWindowAway();
}

void Form::TakeWindowAway() {
  for (Control* control : controls_) control->AttachWindow(nullptr);
  if (window_ != nullptr) ui_.Discard(std::move(window_));
}

void Form::Show() {
  if (host_ != nullptr && (!host_->Active() || !host_->AcceptsInput())) return;
  Load();
  if (window_ == nullptr) window_ = ui_.MakeWindow(*this);
  if (!visible_) {
    visible_ = true;
    if (activeControl_ == nullptr) MoveFocus(false);
    NotifyWindow(Property::Visible);
  }
  Activate();
}

void Form::ShowModal() {
  Load();
  struct Turn {  // also ends when an exception is thrown, so that the other forms accept input again
    explicit Turn(Form& form) : Of(form) {
      Of.ui_.modalForms_.push_back(&Of);
      Of.ui_.ModalChanged();
    }
    ~Turn() { Of.LeaveModal(); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    Form& Of;
  };
  const Turn turn(*this);
  Show();
  ui_.RunModal(*this);
}

void Form::Hide() {
  if (!visible_) return;
  LeaveModal();
  HideHanging();
  visible_ = false;
  NotifyWindow(Property::Visible);
}

void Form::HideHanging() {
  for (Form* form : ui_.forms_) {
    if (form->host_ == this) form->Hide();
  }
}

void Form::LeaveModal() {
  if (std::erase(ui_.modalForms_, this) > 0) ui_.ModalChanged();
}

bool Form::AcceptsInput() const {
  const Form* modal = ui_.ModalForm();
  const bool inSight = visible_ && windowState_ != WindowState::Minimized;
  return inSight && !ui_.Ended() && (modal == nullptr || modal == this);
}

void Form::MoveTo(Twips left, Twips top) { SetPlace(left, top, inside_); }

void Form::SetInside(Size inside) { SetPlace(bounds_.Left, bounds_.Top, inside); }

void Form::SetPlace(Twips left, Twips top, Size inside) {
  if (bounds_.Left == left && bounds_.Top == top && inside_ == inside) return;
  bounds_.Left = left;
  bounds_.Top = top;
  inside_ = inside;
  Fit();
  NotifyWindow(Property::Bounds);
}

Size Form::RoomNeeded() const {
  if (host_ != nullptr) return host_->RoomNeeded();
  // The usual height of a title bar, and the width of the edges below it.
  constexpr Size TitleBar{240, 600};
  const Size more = borderStyle_ == BorderStyle::Dialog ? TitleBar : Size{};
  return {inside_.Width + more.Width, inside_.Height + more.Height};
}

void Form::Fit() {
  const Screen screen = ui_.ScreenAt(bounds_);
  const Size room = RoomNeeded();
  const double share = std::min(double(screen.WorkArea.Width) / std::max(room.Width, 1),
                                double(screen.WorkArea.Height) / std::max(room.Height, 1));
  const double dotsPerInch = TwipsPerInch / screen.TwipsPerPixelX;
  const double scale = share < 1 ? std::max(std::floor(dotsPerInch * share), 1.0) / dotsPerInch : 1;
  const bool changed = scale != scale_;
  scale_ = scale;
  bounds_.Width = static_cast<Twips>(inside_.Width * scale);
  bounds_.Height = static_cast<Twips>(inside_.Height * scale);
  if (changed) NotifyWindow(Property::Bounds);
}

void Form::SetWindowState(form::WindowState state) {
  if (windowState_ == state) return;
  HideHanging();
  windowState_ = state;
  NotifyWindow(Property::Value);
}

void Form::SetTopMost(bool topMost) {
  topMost_ = topMost;
  if (window_ != nullptr) window_->SetTopMost(topMost);
  for (Form* form : ui_.forms_) {
    if (form->host_ == this && form->visible_ && form->window_ != nullptr) form->window_->SetTopMost(topMost);
  }
}

void Form::MoveInto(const Rect& area) {
  MoveTo(Within(bounds_.Left, bounds_.Width, area.Left, area.Right()),
         Within(bounds_.Top, bounds_.Height, area.Top, area.Bottom()));
}

void Form::Drag() {
  if (window_ == nullptr || dragging_) return;
  HideHanging();
  const Scoped dragging(dragging_, true);
  window_->Drag();
}

void Form::Activate() {
  if (window_ != nullptr && host_ == nullptr && AcceptsInput()) window_->Activate();
}

void Form::MoveFocus(bool backwards) {
  std::vector<Control*> order;
  for (Control* control : controls_) {
    if (control == activeControl_ || (control->TabStop() && control->IsFocusable() && control->IsReachable())) {
      order.push_back(control);
    }
  }
  if (order.empty()) return;
  std::stable_sort(order.begin(), order.end(),
                   [](const Control* a, const Control* b) { return a->TabIndex() < b->TabIndex(); });
  const auto here = std::find(order.begin(), order.end(), activeControl_);
  const std::size_t count = order.size();
  // If nothing is active, the next control is the first and the previous one is the last.
  const std::size_t from = here != order.end() ? static_cast<std::size_t>(here - order.begin())
                           : backwards         ? 0
                                               : count - 1;
  Control* next = order[(from + (backwards ? count - 1 : 1)) % count];
  if (next->IsReachable()) next->SetFocus();
}

void Form::InputKeyUp(Key key) {
  const bool composing = activeControl_ != nullptr && activeControl_->Composing();
  if (key == Key::Escape && composing) return;  // meant for the input method
  if (key >= Key::F1 && key <= Key::F12) HideHanging();
  if (AcceptsInput()) Form_KeyUp(key);
}

void Form::InputMouseMove(MouseButton held) {
  if (AcceptsInput()) Form_MouseMove(held);
}

void Form::InputMoved(Twips left, Twips top) {
  HideHanging();
  bounds_.Left = left;
  bounds_.Top = top;
  Fit();
  Form_Moved();
}

void Form::InputWindowState(form::WindowState state) {
  if (windowState_ == state) return;
  HideHanging();
  windowState_ = state;
  if (state == WindowState::Minimized) Form_Minimized();
}

void Form::InputActive(bool active) {
  active_ = active;
  if (!active) HideHanging();
}

void Form::InputResolution() {
  HideHanging();
  Fit();
}

void Form::InputScreensChanged() {
  HideHanging();
  Fit();
  if (visible_) Form_ScreensChanged();
}

void Form::Form_ScreensChanged() { MoveInto(ui_.ScreenAt(bounds_).WorkArea); }

void Form::InputClose() {
  if (loaded_) Form_Close();
}

void Form::InputDrop(const DroppedItems& items) {
  if (AcceptsDrops() && AcceptsInput()) dropHandler_->Take(items);
}

void Form::InputFocus(Control* control) {
  if (control == nullptr || control->AcceptsInput()) SetActiveControl(control);
}

void Form::AddControl(Control& control) { controls_.push_back(&control); }

void Form::RemoveControl(Control& control) {
  std::erase(controls_, &control);
  if (activeControl_ == &control) activeControl_ = nullptr;
}

void Form::SetActiveControl(Control* control) {
  if (activeControl_ == control) return;
  activeControl_ = control;
  HideHanging();
}

void Form::LeaveUnreachable() {
  if (activeControl_ == nullptr || activeControl_->IsReachable()) return;
  if (visible_) MoveFocus(false);
  // No other control can take the focus.
  if (activeControl_ != nullptr && !activeControl_->IsReachable()) SetActiveControl(nullptr);
}

}  // namespace vantor::form
