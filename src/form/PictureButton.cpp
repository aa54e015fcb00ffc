#include "form/PictureButton.h"

#include <algorithm>

#include "form/Form.h"
#include "form/UserInterface.h"

namespace vantor::form {

void DressButton(CommandButton& button, std::wstring_view caption) {
  button.SetCaption(caption);
  button.SetPictures({Background::Normal}, {Background::Pressed}, {Background::Disabled});
}

Twips ButtonWidth(const CommandButton& button) {
  constexpr Twips Padding = 180;
  constexpr Twips Least = 960;
  const Twips text = button.OwnerForm().Ui().MeasureText(button.Caption(), false, UserInterface::AnyWidth).Width;
  return std::max(text + 2 * Padding, Least);
}

}  // namespace vantor::form
