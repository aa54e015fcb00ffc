#include "form/Static.h"

namespace vantor::form {

void Label::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

void Label::SetTransparent(bool transparent) {
  if (transparent_ == transparent) return;
  transparent_ = transparent;
  NotifyWindow(Property::Colors);
}

void Label::SetBold(bool bold) {
  if (bold_ == bold) return;
  bold_ = bold;
  NotifyWindow(Property::Caption);
}

void Frame::SetCaption(std::wstring_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NotifyWindow(Property::Caption);
}

void Frame::SetBorder(bool border) {
  if (border_ == border) return;
  border_ = border;
  NotifyWindow(Property::Caption);
}

void Frame::InputClick() {
  if (AcceptsInput()) Click();
}

Size Frame::LeastSize() const {
  constexpr Twips BesideCaption = 360;  // the line on its left and right, and the gaps
  const Size text = TextSize(caption_);
  return {text.Width + BesideCaption, text.Height};
}

void PictureControl::SetPicture(form::Picture picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  NotifyWindow(Property::Picture);
}

}  // namespace vantor::form
