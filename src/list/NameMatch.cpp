#include "list/NameMatch.h"

#include <algorithm>

#include "list/StoredText.h"

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
  NameMatch match(language, StoredName(name));
  const auto& names = nameBox.Entries();
  const bool listed = std::any_of(names.begin(), names.end(), [&](const std::wstring& entry) {
    return match.Equals(HasQuote(entry) ? StoredName(entry) : entry);
  });
  return listed ? L"MessageNameAlreadyListed" : L"";
}

message::MessageKey PathAlreadyListed(LaunchGroup group, std::wstring_view path, const form::ComboBox& pathBox) {
  const std::wstring stored = StoredTarget(group, path);
  const auto& paths = pathBox.Entries();
  const bool listed = std::any_of(paths.begin(), paths.end(), [&](const std::wstring& entry) {
    return HasQuote(entry) ? StoredTarget(group, entry) == stored : entry == stored;
  });
  return listed ? L"MessagePathAlreadyListed" : L"";
}

}  // namespace vantor::list
