#include "text/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iterator>

#include "text/Ascii.h"

namespace vantor::text {

namespace {

/// Parses a number from its start. The library's own functions would also accept "inf" and "0x10", depend on the
/// locale, and add some 50 KB.
class NumberText {
 public:
  explicit NumberText(std::wstring_view text) : rest_(text) {
    while (rest_.starts_with(L' ')) rest_.remove_prefix(1);
    while (rest_.ends_with(L' ')) rest_.remove_suffix(1);
  }

  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
  bool Take(std::wstring_view oneOf) {
    if (rest_.empty() || oneOf.find(rest_.front()) == std::wstring_view::npos) return false;
    rest_.remove_prefix(1);
    return true;
  }
  /// Returns true for a minus.
  bool TakeSign() {
    if (Take(L"-")) return true;
    Take(L"+");
    return false;
  }
  std::wstring_view TakeDigits() {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsDigit);
    const std::wstring_view digits = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(digits.size());
    return digits;
  }

 private:
  std::wstring_view rest_;
};

/// The value of digits, at most `most`.
long ToLong(std::wstring_view digits, long most) {
  long value = 0;
  for (const wchar_t digit : digits) value = std::min(value * 10 + (digit - L'0'), most);
  return value;
}

}  // namespace

std::wstring Decimal(long long number) {
  char digits[20];  // enough for the smallest number with its sign
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  return {std::begin(digits), end};
}

std::optional<std::int16_t> ParseInt16(std::wstring_view text) {
  NumberText number(text);
  const bool negative = number.TakeSign();
  const std::wstring_view digits = number.TakeDigits();
  const long value = ToLong(digits, INT16_MAX + 2L) * (negative ? -1 : 1);
  if (digits.empty() || !number.AtEnd() || value < INT16_MIN || value > INT16_MAX) return std::nullopt;
  return static_cast<std::int16_t>(value);
}

std::optional<double> ParseDouble(std::wstring_view text) {
  NumberText number(text);
  const bool negative = number.TakeSign();
  const std::wstring_view whole = number.TakeDigits();
  const std::wstring_view fraction = number.Take(L".") ? number.TakeDigits() : std::wstring_view();
  long exponent = 0;
  bool complete = !whole.empty() || !fraction.empty();
  if (number.Take(L"eE")) {
    const bool negativeExponent = number.TakeSign();
    const std::wstring_view digits = number.TakeDigits();
    exponent = ToLong(digits, 5000) * (negativeExponent ? -1 : 1);  // far beyond the range of a double
    complete = complete && !digits.empty();
  }
  if (!complete || !number.AtEnd()) return std::nullopt;

  long double value = 0;
  for (const std::wstring_view digits : {whole, fraction}) {
    for (const wchar_t digit : digits) value = value * 10 + (digit - L'0');
  }
  exponent -= static_cast<long>(fraction.size());
  long double scale = 1;
  for (long i = value == 0 ? 0 : std::abs(exponent); i > 0; --i) scale *= 10;
  value = exponent < 0 ? value / scale : value * scale;
  return static_cast<double>(negative ? -value : value);
}

}  // namespace vantor::text
