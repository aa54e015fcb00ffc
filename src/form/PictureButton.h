#pragma once

#include <string_view>

#include "form/Button.h"
#include "form/Static.h"

namespace vantor::form {

/// The height of the panels' buttons, in twips.
inline constexpr Twips ButtonHeight = 390;

/// Gives a button of the panels and messages its pictures.
void DressButton(CommandButton& button);
/// The same, and the label that is its face.
void DressButton(CommandButton& button, Label& label, std::wstring_view caption);
/// Places the button and its label.
void PlaceButton(CommandButton& button, Label& label, const Rect& place);
/// A button's width that shows the caption whole, in twips.
[[nodiscard]] Twips ButtonWidth(const Label& label);

}  // namespace vantor::form
