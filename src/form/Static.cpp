#include "form/Static.h"

#include "form/UserInterface.h"

namespace vantor::form {

Twips Label::PlaceAt(Twips left, Twips top, Twips width) {
  SetBounds({left, top, width, OwnerForm().Ui().MeasureText(caption_, bold_, width).Height});
  return Bottom();
}

void Frame::InputClick() {
  if (AcceptsInput()) Click();
}

Size Frame::LeastSize() const {
  constexpr Twips BesideCaption = 360;  // the line on both sides, and the gaps
  const Size text = TextSize(caption_);
  return {text.Width + BesideCaption, text.Height};
}

}  // namespace vantor::form
