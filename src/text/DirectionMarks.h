#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vantor::text {

/// Whether a character changes the direction of the text after it (U+202A to U+202E, U+2066 to U+2069). Such characters
/// are invisible and can disguise a name: one that ends in "txt.exe" may look as if it ended in "exe.txt".
[[nodiscard]] constexpr bool IsDirectionMark(wchar_t c) {
  return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

/// A text for display, in which each such mark is replaced by a visible character.
[[nodiscard]] inline std::wstring WithSignsForMarks(std::wstring_view text) {
  constexpr wchar_t Sign = 0xFFFD;  // the replacement character
  std::wstring shown(text);
  std::replace_if(shown.begin(), shown.end(), IsDirectionMark, Sign);
  return shown;
}

}  // namespace vantor::text
