#pragma once

// The words of a line of a flow: its parts, and the names of keys and settings.

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "form/Keys.h"
#include "text/Utf8.h"

namespace vantor::flows {

using Text = std::wstring;
using Texts = std::vector<std::wstring>;

/// Why a flow does not go on: a line that can't be understood, or a step that can't be done.
struct Failure : std::runtime_error {
  using runtime_error::runtime_error;
};
/// Why a flow can't be played here.
struct Skip : std::runtime_error {
  using runtime_error::runtime_error;
};

/// Stands for the bytes of a file that does not exist.
inline constexpr char NoFile[] = "(none)";

/// A list's entries as flows write them.
inline Text Joined(const Texts& texts) {
  Text all;
  for (const Text& text : texts) all += (all.empty() ? L"" : L" | ") + text;
  return all;
}

inline std::string Narrow(std::wstring_view text) {
  std::string bytes;
  text::AppendUtf8(bytes, text);
  return bytes;
}

/// The parts between separators, without the blanks around them; none for "".
inline Texts Split(std::wstring_view text, std::wstring_view separator) {
  Texts parts;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(separator, at), text.size());
    if (end > at || separator.size() > 1) parts.emplace_back(text.substr(at, end - at));
    at = end + separator.size();
  }
  return parts;
}
inline Texts Words(const Text& text) { return Split(text, L" "); }

/// The first word, and what follows it.
inline std::pair<Text, Text> Cut(const Text& text, std::wstring_view separator = L" ") {
  const std::size_t end = text.find(separator);
  if (end == text.npos) return {text, {}};
  return {text.substr(0, end), text.substr(end + separator.size())};
}

inline constexpr std::pair<std::wstring_view, form::Key> Keys[] = {
    {L"Backspace", form::Key::Back},    {L"Tab", form::Key::Tab},
    {L"Enter", form::Key::Enter},       {L"Escape", form::Key::Escape},
    {L"Space", form::Key::Space},       {L"Home", form::Key::Home},
    {L"End", form::Key::End},           {L"Up", form::Key::Up},
    {L"Down", form::Key::Down},         {L"PageUp", form::Key::PageUp},
    {L"PageDown", form::Key::PageDown}, {L"Left", form::Key::Left},
    {L"Right", form::Key::Right},       {L"Delete", form::Key::Delete}};

inline int Number(const Text& word) {
  try {
    std::size_t read = 0;
    const int number = std::stoi(word, &read);
    if (read == word.size()) return number;
  } catch (const std::logic_error&) {  // not even the first character
  }
  throw Failure("not a number: " + Narrow(word));
}

/// The scripting file system's number for a type of drive; Windows' own is one more.
inline int DriveType(const Text& type) {
  using Named = std::pair<std::wstring_view, int>;
  constexpr Named types[] = {{L"floppy", 1}, {L"fixed", 2}, {L"network", 3}, {L"cdrom", 4}, {L"empty", 4}};
  const auto* const found = std::ranges::find(types, type, &Named::first);
  if (found == std::end(types)) throw Failure("no such type of drive: " + Narrow(type));
  return found->second;
}

/// A key by its name, its letter, or F and its number.
inline form::Key KeyOf(const Text& word) {
  const auto* const key = std::ranges::find(Keys, word, &std::pair<std::wstring_view, form::Key>::first);
  if (key != std::end(Keys)) return key->second;
  if (word.size() == 1) return static_cast<form::Key>(word[0]);
  const int number = word.starts_with(L'F') ? Number(word.substr(1)) : 0;
  if (number < 1 || number > 12) throw Failure("no such key: " + Narrow(word));
  return static_cast<form::Key>(static_cast<int>(form::Key::F1) - 1 + number);
}

/// The settings file's values in its order, as they are when nothing else is said.
inline constexpr wchar_t UsualSettings[] =
    L"OptionMask=2 FileUpper=-1 FoldUpper=-1 ProgUpper=-1 WebUpper=-1 Left=0 Top=0 Folder= MachineFileUpper=-1 "
    L"MachineFoldUpper=-1 MachineProgUpper=-1";

/// The text of the settings file, with what is said in the place of the usual values: "OptionMask=6 Left=600".
inline Text SettingsText(const Text& changes, const Text& folder) {
  std::vector<std::pair<Text, Text>> values;
  for (const Text& usual : Words(UsualSettings)) values.push_back(Cut(usual, L"="));
  const auto valueOf = [&](const Text& name) -> Text& {
    const auto found = std::ranges::find(values, name, &std::pair<Text, Text>::first);
    if (found == values.end()) throw Failure("no such setting: " + Narrow(name));
    return found->second;
  };
  valueOf(L"Folder") = folder;
  for (const Text& change : Words(changes)) valueOf(Cut(change, L"=").first) = Cut(change, L"=").second;
  Text text;
  for (const auto& [name, value] : values) text += (name == L"Folder" ? L'"' + value + L'"' : value) + L"\r\n";
  return text;
}

}  // namespace vantor::flows
