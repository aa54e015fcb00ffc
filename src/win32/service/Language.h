#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "service/Language.h"

namespace vantor::win32 {

/// Letter case by the user's language, bytes by the system's ANSI code page.
class Language final : public service::Language {
 public:
  [[nodiscard]] std::wstring Lower(std::wstring_view text) const override;
  [[nodiscard]] std::wstring Upper(std::wstring_view text) const override;
  [[nodiscard]] std::wstring FromCodePage(std::string_view bytes) const override;
  [[nodiscard]] std::optional<std::string> ToCodePage(std::wstring_view text) const override;
};

}  // namespace vantor::win32
