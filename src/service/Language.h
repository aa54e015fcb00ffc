#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor::service {

/// Letters and code pages, as the user's system has them.
class Language {
 public:
  virtual ~Language() = default;

  /// Each character in its lower or upper case; the length never changes, and for the characters below 128
  /// only A to Z and a to z change.
  [[nodiscard]] virtual std::wstring Lower(std::wstring_view text) const = 0;
  [[nodiscard]] virtual std::wstring Upper(std::wstring_view text) const = 0;

  /// Text from bytes in the system's ANSI code page. Bytes that mean nothing there become U+FFFD.
  [[nodiscard]] virtual std::wstring FromCodePage(std::string_view bytes) const = 0;
  /// The same the other way; nothing when the code page lacks one of the characters.
  [[nodiscard]] virtual std::optional<std::string> ToCodePage(std::wstring_view text) const = 0;

 protected:
  Language() = default;
  Language(const Language&) = default;
  Language& operator=(const Language&) = default;
};

}  // namespace vantor::service
