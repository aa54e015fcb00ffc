#pragma once

#include <string_view>

#include "form/Button.h"

namespace vantor::form {

/// The height of the panels' buttons, in twips.
inline constexpr Twips ButtonHeight = 390;

/// Gives a button of the panels and messages its pictures and its word.
void DressButton(CommandButton& button, std::wstring_view caption);
/// A button's width that shows its caption whole, in twips.
[[nodiscard]] Twips ButtonWidth(const CommandButton& button);

}  // namespace vantor::form
