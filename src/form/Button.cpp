#include "form/Button.h"

#include "form/Form.h"
#include "form/Keys.h"

namespace vantor::form {

void CommandButton::SetPictures(form::Picture normal, form::Picture down, form::Picture disabled) {
  if (picture_ == normal && downPicture_ == down && disabledPicture_ == disabled) return;
  picture_ = normal;
  downPicture_ = down;
  disabledPicture_ = disabled;
  NotifyWindow(Property::Picture);
}

void CommandButton::Dress(std::wstring_view caption) {
  SetCaption(caption);
  SetPictures({Background::Normal}, {Background::Pressed}, {Background::Disabled});
}

Twips CommandButton::FullWidth() const {
  constexpr Twips Padding = 180;
  constexpr Twips Least = 960;
  return std::max(TextSize(caption_).Width + 2 * Padding, Least);
}

Size CommandButton::LeastSize() const {
  const Size text = TextSize(caption_);
  if (picture_.Drawing.empty()) return {text.Width + 180, text.Height + 60};  // the edge and some padding
  const Twips letter = text.Height / 2;                                       // a small one, without a descender
  return {faceMargins_.Left + DrawingSide + 2 * DrawingTop + faceMargins_.Right,
          faceMargins_.Top + DrawingTop + DrawingSide + letter + faceMargins_.Bottom};
}

void CommandButton::InputCharacter(wchar_t character) {
  if (character == CharEnter || character == L' ') InputClick();
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

Size ChoiceButton::LeastSize() const {
  constexpr Size Mark{420, 15};  // beside the caption, and around it
  const Size text = TextSize(caption_);
  return {text.Width + Mark.Width, text.Height + Mark.Height};
}

void CheckBox::SetValue(bool value) {
  if (ChangeValue(value)) Click();
}

void CheckBox::InputClick() {
  if (AcceptsInput()) SetValue(!Value());
}

void CheckBox::InputCharacter(wchar_t character) {
  if (character == L' ') InputClick();
  if (character == CharEnter && AcceptsInput()) Enter();
}

std::vector<OptionButton*> OptionButton::Group() {
  std::vector<OptionButton*> group;
  for (Control* control : OwnerForm().Controls()) {
    OptionButton* const button = control->AsOptionButton();
    if (button != nullptr && button->Container() == Container()) group.push_back(button);
  }
  return group;
}

void OptionButton::SetValue(bool value) {
  if (!ChangeValue(value) || !value) return;
  for (OptionButton* other : Group()) {
    if (other != this) other->SetValue(false);
  }
  Click();
}

void OptionButton::InputClick() {
  if (AcceptsInput()) SetValue(true);
}

}  // namespace vantor::form
