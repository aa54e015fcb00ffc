#include "form/PictureButton.h"

#include <algorithm>

#include "form/Form.h"
#include "form/UserInterface.h"

namespace vantor::form {

void DressButton(CommandButton& button) {
  button.SetPictures(Picture::ButtonNormal, Picture::ButtonPressed, Picture::ButtonDisabled);
}

void DressButton(CommandButton& button, Label& label, std::wstring_view caption) {
  label.SetCaption(caption);
  button.SetFaceLabel(label);
  DressButton(button);
}

void PlaceButton(CommandButton& button, Label& label, const Rect& place) {
  button.SetBounds(place);
  label.SetBounds(place);
}

Twips ButtonWidth(const Label& label) {
  constexpr Twips Padding = 180;
  constexpr Twips Least = 960;
  const Twips text = label.OwnerForm().Ui().MeasureText(label.Caption(), false, UserInterface::AnyWidth).Width;
  return std::max(text + 2 * Padding, Least);
}

}  // namespace vantor::form
