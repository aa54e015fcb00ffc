#pragma once

#include <string_view>

#include "form/Button.h"
#include "form/Static.h"

namespace vantor::list {

/// The height of the panels' buttons, in twips.
inline constexpr form::Twips ButtonHeight = 390;

/// Gives a panel's button its pictures and the label that is its face.
void DressButton(form::CommandButton& button, form::Label& label, std::wstring_view caption);
/// Places the button and its label.
void PlaceButton(form::CommandButton& button, form::Label& label, const form::Rect& place);
/// A button's width that shows the caption whole, in twips.
[[nodiscard]] form::Twips ButtonWidth(const form::Label& label);

}  // namespace vantor::list
