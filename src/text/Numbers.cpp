#include "text/Numbers.h"

#include <cstdlib>
#include <string>

namespace vantor::text {
namespace {

/// The text without the blanks around it, when it is made of `allowed` only; else "". Keeps out what the
/// library's own reading accepts beyond plain numbers, such as "inf" and "0x10".
std::string Plain(std::wstring_view text, std::string_view allowed) {
  while (!text.empty() && text.front() == L' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == L' ') text.remove_suffix(1);
  std::string plain;
  for (const wchar_t c : text) {
    if (c >= 0x80 || allowed.find(static_cast<char>(c)) == std::string_view::npos) return {};
    plain += static_cast<char>(c);
  }
  return plain;
}

}  // namespace

std::optional<std::int16_t> ParseInt16(std::wstring_view text) {
  const std::string plain = Plain(text, "+-0123456789");
  char* end = nullptr;
  const long value = std::strtol(plain.c_str(), &end, 10);
  if (plain.empty() || *end != '\0' || value < INT16_MIN || value > INT16_MAX) return std::nullopt;
  return static_cast<std::int16_t>(value);
}

std::optional<double> ParseDouble(std::wstring_view text) {
  const std::string plain = Plain(text, "+-0123456789.eE");
  char* end = nullptr;
  const double value = std::strtod(plain.c_str(), &end);
  if (plain.empty() || *end != '\0') return std::nullopt;
  return value;
}

}  // namespace vantor::text
