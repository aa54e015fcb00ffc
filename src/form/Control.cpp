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

void Control::SetBounds(const Rect& bounds) {
  if (bounds_ == bounds) return;
  bounds_ = bounds;
  NotifyWindow(Property::Bounds);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  form_.LeaveUnreachable();
  NotifyWindow(Property::Visible);
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  form_.LeaveUnreachable();
  NotifyWindow(Property::Enabled);
}

bool Control::IsReachable() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->visible_ || !control->enabled_) return false;
  }
  return true;
}

bool Control::AcceptsInput() const { return IsReachable() && form_.AcceptsInput(); }

void Control::SetBackColor(Color color) {
  if (backColor_ == color) return;
  backColor_ = color;
  NotifyWindow(Property::Colors);
}

void Control::SetForeColor(Color color) {
  if (foreColor_ == color) return;
  foreColor_ = color;
  NotifyWindow(Property::Colors);
}

void Control::SetToolTip(std::wstring_view text) {
  if (toolTip_ == text) return;
  toolTip_ = text;
  NotifyWindow(Property::ToolTip);
}

std::wstring Control::AccessibleName() const {
  if (!accessibleName_.empty()) return accessibleName_;
  return toolTip_.substr(0, toolTip_.find(L"---"));
}

void Control::SetAccessibleName(std::wstring_view name) {
  if (accessibleName_ == name) return;
  accessibleName_ = name;
  NotifyWindow(Property::ToolTip);
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
