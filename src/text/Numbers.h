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
/// A whole number, optionally surrounded by blanks; nothing if the text is not one or exceeds 16 bits.
[[nodiscard]] std::optional<std::int16_t> ParseInt16(std::wstring_view text);
/// A decimal number with "." as the decimal point, whatever the user's locale; exact for whole numbers below 2^53.
/// Nothing if the text is not a number.
[[nodiscard]] std::optional<double> ParseDouble(std::wstring_view text);

}  // namespace vantor::text
