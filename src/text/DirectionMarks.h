#pragma once

#include <string>
#include <string_view>

namespace vantor::text {

/// Whether a character is one of those that turn the direction of the text after it (U+202A to U+202E, U+2066 to
/// U+2069). They are not seen, and make a name look like another: "exe.txt" of what ends in "txt.exe".
[[nodiscard]] constexpr bool IsDirectionMark(wchar_t c) {
  return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

/// A text for people to read, with a sign that can be seen in the place of each such mark.
[[nodiscard]] std::wstring WithSignsForMarks(std::wstring_view text);

}  // namespace vantor::text
