#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor::service {

/// Letter case and code pages according to the user's system.
class Language {
 public:
  virtual ~Language() = default;

  /// Converts each character to lower or upper case. The length never changes, and of the characters below 128 only
  /// A to Z and a to z change.
  [[nodiscard]] virtual std::wstring Lower(std::wstring_view text) const = 0;
  [[nodiscard]] virtual std::wstring Upper(std::wstring_view text) const = 0;

  /// Text from bytes in the system's ANSI code page. Invalid bytes become U+FFFD.
  [[nodiscard]] virtual std::wstring FromCodePage(std::string_view bytes) const = 0;
  /// The reverse; nothing if the code page lacks one of the characters.
  [[nodiscard]] virtual std::optional<std::string> ToCodePage(std::wstring_view text) const = 0;
};

}  // namespace vantor::service
