#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "list/LaunchList.h"
#include "message/MessageKey.h"
#include "service/Language.h"

namespace vantor::list {

/// How a name matches a text, best match first.
enum class Fit { Begins, WordBegins, Contains, None };

/// Compares many names with one text, ignoring case by the rules of the user's system. Nothing is allocated per name,
/// and the system is asked once for each letter beyond ASCII.
class NameMatch {
 public:
  NameMatch(const service::Language& language, std::wstring_view text);

  /// Whether the name begins with the text.
  [[nodiscard]] bool Begins(std::wstring_view name) const { return name.size() >= lower_.size() && StandsAt(name, 0); }
  /// Whether the name equals the text.
  [[nodiscard]] bool Equals(std::wstring_view name) const { return name.size() == lower_.size() && Begins(name); }

  struct Match {
    Fit How = Fit::None;
    std::size_t Start = 0;  // of the matching characters
  };
  /// The position of the text in the name: the first of its best matches.
  [[nodiscard]] Match Find(std::wstring_view name) const;

 private:
  struct Remembered {
    wchar_t Character = 0;
    wchar_t Lower = 0;
  };

  /// Whether the text is found at `start`, where it must not extend beyond the name.
  [[nodiscard]] bool StandsAt(std::wstring_view name, std::size_t start) const;
  [[nodiscard]] wchar_t Lower(wchar_t character) const;

  const service::Language& language_;
  std::wstring lower_;
  mutable std::array<Remembered, 256> remembered_{};
};

/// "MessageNameAlreadyListed" if a name in the box equals `name` apart from case, or would equal it once both are
/// saved; otherwise "".
[[nodiscard]] message::MessageKey CheckNameListed(const service::Language& language, std::wstring_view name,
                                                  const form::ComboBox& nameBox);
/// "MessagePathAlreadyListed" if a target in the group's box is exactly `path`, or would be once both are saved;
/// otherwise "".
[[nodiscard]] message::MessageKey PathAlreadyListed(LaunchGroup group, std::wstring_view path,
                                                    const form::ComboBox& pathBox);

}  // namespace vantor::list
