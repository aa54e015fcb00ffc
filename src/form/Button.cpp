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

void CommandButton::SetPictures(form::Picture normal, form::Picture down, form::Picture disabled) {
  if (picture_ == normal && downPicture_ == down && disabledPicture_ == disabled) return;
  picture_ = normal;
  downPicture_ = down;
  disabledPicture_ = disabled;
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

void ChoiceButton::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

bool ChoiceButton::ChangeValue(bool value) {
  if (value_ == value) return false;
  value_ = value;
  NotifyWindow(Property::Value);
  return true;
}

void CheckBox::SetValue(bool value) {
  if (ChangeValue(value)) Click();
}

void CheckBox::InputClick() {
  if (AcceptsInput()) SetValue(!Value());
}

void OptionButton::SetValue(bool value) {
  if (!ChangeValue(value) || !value) return;
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
