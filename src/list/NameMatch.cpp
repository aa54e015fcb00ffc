#include "list/NameMatch.h"

#include <algorithm>

#include "list/StoredText.h"
#include "text/Ascii.h"

namespace vantor::list {

namespace {

/// Whether a character separates words: blanks and punctuation in ASCII, Latin-1, Unicode's general punctuation (U+2000
/// to U+206F) and that of Chinese and Japanese (U+3000 to U+303F).
bool PartsWords(wchar_t c) {
  if (c < 0x80) return !text::IsDigit(c) && !text::IsLetter(c);
  return c <= 0xA9 || c == 0xAB || c == 0xB7 || c == 0xBB || (c >= 0x2000 && c <= 0x206F) ||
         (c >= 0x3000 && c <= 0x303F);
}

}  // namespace

NameMatch::NameMatch(const service::Language& language, std::wstring_view text)
    : language_(language), lower_(language.Lower(text)) {}

bool NameMatch::StandsAt(std::wstring_view name, std::size_t start) const {
  for (std::size_t i = 0; i < lower_.size(); ++i) {
    if (name[start + i] != lower_[i] && Lower(name[start + i]) != lower_[i]) return false;
  }
  return true;
}

NameMatch::Match NameMatch::Find(std::wstring_view name) const {
  Match inside;
  const wchar_t first = lower_.empty() ? L'\0' : lower_.front();
  for (std::size_t start = 0; start + lower_.size() <= name.size(); ++start) {
    const wchar_t c = name[start];
    if (c < 128 && first < 128 && c != first && (c | 0x20) != first) continue;  // rules out most positions quickly
    if (!StandsAt(name, start)) continue;
    if (start == 0) return {Fit::Begins, 0};
    if (PartsWords(name[start - 1])) return {Fit::WordBegins, start};
    if (inside.How == Fit::None) inside = {Fit::Contains, start};
  }
  return inside;
}

wchar_t NameMatch::Lower(wchar_t character) const {
  if (character < 128) return text::ToLower(character);
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
    return HasQuote(entry) ? match.Equals(StoredName(entry)) : match.Equals(entry);  // most are not copied
  });
  return listed ? message::MessageNameAlreadyListed : message::MessageKey();
}

message::MessageKey PathAlreadyListed(LaunchGroup group, std::wstring_view path, const form::ComboBox& pathBox) {
  const std::wstring stored = StoredTarget(group, path);
  const auto& paths = pathBox.Entries();
  const bool listed = std::any_of(paths.begin(), paths.end(), [&](const std::wstring& entry) {
    return HasQuote(entry) ? StoredTarget(group, entry) == stored : entry == stored;
  });
  return listed ? message::MessagePathAlreadyListed : message::MessageKey();
}

}  // namespace vantor::list
