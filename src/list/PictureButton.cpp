#include "list/PictureButton.h"

#include <algorithm>

#include "form/Form.h"
#include "form/UserInterface.h"

namespace vantor::list {

void DressButton(form::CommandButton& button, form::Label& label, std::wstring_view caption) {
  label.SetCaption(caption);
  button.SetFaceLabel(label);
  button.SetPictures(form::Picture::ButtonNormal, form::Picture::ButtonPressed, form::Picture::ButtonDisabled);
}

void PlaceButton(form::CommandButton& button, form::Label& label, const form::Rect& place) {
  button.SetBounds(place);
  label.SetBounds(place);
}

form::Twips ButtonWidth(const form::Label& label) {
  constexpr form::Twips Padding = 180;
  constexpr form::Twips Least = 960;
  constexpr form::Twips AnyWidth = 30000;
  const form::Twips text = label.OwnerForm().Ui().MeasureText(label.Caption(), false, AnyWidth).Width;
  return std::max(text + 2 * Padding, Least);
}

}  // namespace vantor::list
