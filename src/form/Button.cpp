#include "form/Button.h"

#include "form/Form.h"

namespace vantor::form {

void CommandButton::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

void CommandButton::SetPicture(form::Picture picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  NotifyWindow(Property::Picture);
}

void CommandButton::SetDownPicture(form::Picture picture) {
  if (downPicture_ == picture) return;
  downPicture_ = picture;
  NotifyWindow(Property::Picture);
}

void CommandButton::SetDisabledPicture(form::Picture picture) {
  if (disabledPicture_ == picture) return;
  disabledPicture_ = picture;
  NotifyWindow(Property::Picture);
}

void CommandButton::DoClick() {
  if (Enabled()) Click();
}

void CommandButton::InputClick() {
  if (AcceptsInput()) Click();
}

void CommandButton::InputMouseDown(MouseButton button) {
  if (AcceptsInput()) MouseDown(button);
}

void CommandButton::InputMouseUp(MouseButton button) {
  if (AcceptsInput()) MouseUp(button);
}

void CheckBox::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

void CheckBox::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  NotifyWindow(Property::Value);
  Click();
}

void CheckBox::InputClick() {
  if (AcceptsInput()) SetValue(!value_);
}

void OptionButton::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

void OptionButton::SetValue(bool value) {
  if (value_ == value) return;
  value_ = value;
  NotifyWindow(Property::Value);
  if (!value) return;
  for (Control* other : OwnerForm().Controls()) {
    if (other == this || other->Kind() != ControlKind::OptionButton || other->Container() != Container()) continue;
    static_cast<OptionButton*>(other)->SetValue(false);
  }
  Click();
}

void OptionButton::InputClick() {
  if (AcceptsInput()) SetValue(true);
}

}  // namespace vantor::form
