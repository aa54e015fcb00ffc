#include "list/NameMatch.h"

#include <algorithm>

namespace vantor::list {

NameMatch::NameMatch(const service::Language& language, std::wstring_view text)
    : language_(language), lower_(language.Lower(text)) {}

bool NameMatch::Begins(std::wstring_view name) const {
  if (name.size() < lower_.size()) return false;
  for (std::size_t i = 0; i < lower_.size(); ++i) {
    if (name[i] != lower_[i] && Lower(name[i]) != lower_[i]) return false;
  }
  return true;
}

wchar_t NameMatch::Lower(wchar_t character) const {
  if (character < 128) return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + 32) : character;
  Remembered& remembered = remembered_[static_cast<std::size_t>(character) % remembered_.size()];
  if (remembered.Character != character) {
    remembered = {character, language_.Lower(std::wstring_view(&character, 1)).front()};
  }
  return remembered.Lower;
}

message::MessageKey CheckNameListed(const service::Language& language, std::wstring_view name,
                                    const form::ComboBox& nameBox) {
  NameMatch match(language, name);
  const auto& names = nameBox.Entries();
  const bool listed = std::any_of(names.begin(), names.end(), [&](const auto& entry) { return match.Equals(entry); });
  return listed ? L"MessageNameAlreadyListed" : L"";
}

message::MessageKey PathAlreadyListed(std::wstring_view path, const form::ComboBox& pathBox) {
  const auto& paths = pathBox.Entries();
  return std::find(paths.begin(), paths.end(), path) != paths.end() ? L"MessagePathAlreadyListed" : L"";
}

}  // namespace vantor::list
