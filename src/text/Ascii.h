#pragma once

namespace vantor::text {

// Letters and digits below 128, whatever the user's language.

[[nodiscard]] constexpr bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

[[nodiscard]] constexpr wchar_t ToLower(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

[[nodiscard]] constexpr wchar_t ToUpper(wchar_t c) {
  return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
}

[[nodiscard]] constexpr bool IsLetter(wchar_t c) { return ToLower(c) >= L'a' && ToLower(c) <= L'z'; }

}  // namespace vantor::text
