#include "form/Control.h"

#include "form/Form.h"
#include "form/UserInterface.h"

namespace vantor::form {

Control::Control(class Form& form, std::wstring_view name)
    : form_(form), name_(name), tabIndex_(static_cast<int>(form.Controls().size())) {
  form_.AddControl(*this);
}

Control::Control(Control& container, std::wstring_view name) : Control(container.form_, name) {
  container_ = &container;
}

Control::~Control() { form_.RemoveControl(*this); }

void Control::SetReachable(bool& how, bool value, Property property) {
  if (how == value) return;
  how = value;
  form_.LeaveUnreachable();
  NotifyWindow(property);
}

bool Control::IsReachable() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->visible_ || !control->enabled_) return false;
  }
  return true;
}

bool Control::AcceptsInput() const { return IsReachable() && form_.AcceptsInput(); }

std::wstring Control::AccessibleName() const {
  if (!accessibleName_.empty()) return accessibleName_;
  return toolTip_.substr(0, toolTip_.find(L"---"));
}

void Control::SetFocus() {
  if (!IsFocusable() || !IsReachable()) return;
  if (form_.Visible() && !form_.AcceptsInput()) return;
  form_.SetActiveControl(this);
  if (form_.Visible()) {
    form_.Activate();
    if (window_ != nullptr) window_->TakeFocus();
  }
}

bool Control::HasFocus() const { return form_.AcceptsInput() && form_.ActiveControl() == this; }

Size Control::TextSize(std::wstring_view text, bool bold) const {
  return form_.Ui().MeasureText(text, bold, UserInterface::AnyWidth);
}

void Control::PaintNow() const {
  if (window_ != nullptr) window_->PaintNow();
}

void Control::NotifyWindow(Property property) const {
  if (window_ != nullptr) window_->Changed(property);
}

}  // namespace vantor::form
