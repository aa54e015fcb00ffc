#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantor::text {

/// The nearest 16-bit value.
[[nodiscard]] constexpr std::int16_t ToInt16(long long value) {
  if (value < INT16_MIN) return INT16_MIN;
  if (value > INT16_MAX) return INT16_MAX;
  return static_cast<std::int16_t>(value);
}

/// A whole number in decimal digits. std::to_wstring would add 20 KB to the program.
[[nodiscard]] std::wstring Decimal(long long number);
/// A whole number, with blanks around it allowed; nothing when the text is something else or beyond 16 bits.
[[nodiscard]] std::optional<std::int16_t> ParseInt16(std::wstring_view text);
/// A decimal number with "." as its point, whatever the user's locale; exact for whole numbers below 2^53. Nothing
/// when the text is something else.
[[nodiscard]] std::optional<double> ParseDouble(std::wstring_view text);

}  // namespace vantor::text
