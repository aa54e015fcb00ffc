#pragma once

#include <string_view>

#include "form/Button.h"

namespace vantor::form {

/// The height of the panels' buttons, in twips.
inline constexpr Twips ButtonHeight = 390;

/// Gives a button of a panel or message its pictures and its caption.
void DressButton(CommandButton& button, std::wstring_view caption);
/// The width at which a button shows its whole caption, in twips.
[[nodiscard]] Twips ButtonWidth(const CommandButton& button);

}  // namespace vantor::form
