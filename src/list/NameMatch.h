#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "list/LaunchList.h"
#include "message/MessageKey.h"
#include "service/Language.h"

namespace vantor::list {

/// How a name fits a text, the closest first.
enum class Fit { Begins, WordBegins, Contains, None };

/// Compares many names with one text without regard to letter case, as the user's system has it. Nothing is
/// allocated per name, and the system is asked once for each letter beyond ASCII.
class NameMatch {
 public:
  NameMatch(const service::Language& language, std::wstring_view text);

  /// The name's first characters are the text.
  [[nodiscard]] bool Begins(std::wstring_view name) const { return name.size() >= lower_.size() && StandsAt(name, 0); }
  /// The name is the text.
  [[nodiscard]] bool Equals(std::wstring_view name) const { return name.size() == lower_.size() && Begins(name); }

  struct Place {
    Fit How = Fit::None;
    std::size_t Start = 0;  // of the characters that fit
  };
  /// Where in the name the text stands: the first place of those where it fits most closely.
  [[nodiscard]] Place Find(std::wstring_view name) const;

 private:
  struct Remembered {
    wchar_t Character = 0;
    wchar_t Lower = 0;
  };

  /// The text stands at a place that leaves room for it.
  [[nodiscard]] bool StandsAt(std::wstring_view name, std::size_t start) const;
  [[nodiscard]] wchar_t Lower(wchar_t character) const;

  const service::Language& language_;
  std::wstring lower_;
  mutable std::array<Remembered, 256> remembered_{};
};

/// "MessageNameAlreadyListed" when a name of the box equals `name` apart from letter case, or would when both are
/// saved, else "".
[[nodiscard]] message::MessageKey CheckNameListed(const service::Language& language, std::wstring_view name,
                                                  const form::ComboBox& nameBox);
/// "MessagePathAlreadyListed" when a target of the group's box is exactly `path`, or would be when both are saved,
/// else "".
[[nodiscard]] message::MessageKey PathAlreadyListed(LaunchGroup group, std::wstring_view path,
                                                    const form::ComboBox& pathBox);

}  // namespace vantor::list
