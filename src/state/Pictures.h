#pragma once

#include "form/Picture.h"

/// The program's drawings: its logo, and the symbols on the bar's buttons.
namespace vantor::state::picture {

/// The product's logo. tools/icon also draws the icon from these lines.
inline constexpr form::Shape Mark[] = {
    {"M3.4 0 H12.6 C14.5 0 16 1.5 16 3.4 V12.6 C16 14.5 14.5 16 12.6 16 H3.4 C1.5 16 0 14.5 0 12.6 V3.4 "
     "C0 1.5 1.5 0 3.4 0 Z",
     form::Color::MarkBlue},
    {"M2.7 3.2 H6.2 L9.75 12.8 H6.25 Z", form::Color::LineBlue},
    {"M9.8 3.2 H13.3 L9.75 12.8 H6.25 Z", form::Color::White},
};

inline constexpr form::Shape Unfold[] = {{"M3.5 4 L7.5 8 L3.5 12 M8.5 4 L12.5 8 L8.5 12"}};
inline constexpr form::Shape Fold[] = {{"M7.5 4 L3.5 8 L7.5 12 M12.5 4 L8.5 8 L12.5 12"}};
/// A page with a plus.
inline constexpr form::Shape Add[] = {{"M7 14.5 H3 V1.5 H9.5 L12.5 4.5 V7 M11.5 9 V15 M8.5 12 H14.5"}};
/// A folder with an arrow.
inline constexpr form::Shape Open[] = {{"M1.5 13.5 V2.5 H6 L8 4.5 H14.5 V13.5 Z M5 9 H11 M8.5 6.5 L11 9 L8.5 11.5"}};
inline constexpr form::Shape List[] = {{"M1.5 3 H2.5 M6 3 H14.5 M1.5 8 H2.5 M6 8 H14.5 M1.5 13 H2.5 M6 13 H14.5"}};
/// A window with an exclamation mark.
inline constexpr form::Shape Companions[] = {{"M2 2 H14 V14 H2 Z M8 4.5 V9 M8 11.5 H8"}};
/// Sliders.
inline constexpr form::Shape Preferences[] = {
    {"M1.5 5 H4 M8.5 5 H14.5 "
     "M6.25 3 C7.35 3 8.25 3.9 8.25 5 C8.25 6.1 7.35 7 6.25 7 C5.15 7 4.25 6.1 4.25 5 C4.25 3.9 5.15 3 6.25 3 Z "
     "M1.5 11 H7.5 M12 11 H14.5 "
     "M9.75 9 C10.85 9 11.75 9.9 11.75 11 C11.75 12.1 10.85 13 9.75 13 C8.65 13 7.75 12.1 7.75 11 "
     "C7.75 9.9 8.65 9 9.75 9 Z"}};
/// A question mark in a ring.
inline constexpr form::Shape Help[] = {
    {"M8 1.5 C11.6 1.5 14.5 4.4 14.5 8 C14.5 11.6 11.6 14.5 8 14.5 C4.4 14.5 1.5 11.6 1.5 8 C1.5 4.4 4.4 1.5 8 1.5 Z "
     "M6 6.3 C6 5.1 6.9 4.4 8 4.4 C9.2 4.4 10 5.2 10 6.2 C10 7.7 8 7.7 8 9.2 M8 11.6 H8"}};
/// Brackets.
inline constexpr form::Shape Code[] = {{"M4.5 4 L1.5 8 L4.5 12 M11.5 4 L14.5 8 L11.5 12 M9.25 2.5 L6.75 13.5"}};
inline constexpr form::Shape Minimize[] = {{"M3.5 11.5 H12.5"}};
inline constexpr form::Shape Exit[] = {{"M4 4 L12 12 M12 4 L4 12"}};

}  // namespace vantor::state::picture
