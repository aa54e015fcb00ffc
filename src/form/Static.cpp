#include "form/Static.h"

namespace vantor::form {

void Frame::InputClick() {
  if (AcceptsInput()) Click();
}

Size Frame::LeastSize() const {
  constexpr Twips BesideCaption = 360;  // the line on both sides, and the gaps
  const Size text = TextSize(caption_);
  return {text.Width + BesideCaption, text.Height};
}

}  // namespace vantor::form
