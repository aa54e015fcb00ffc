#include "win32/base/CommandLine.h"

#include <windows.h>

namespace vantor::win32 {

namespace {

bool IsProgram(std::wstring_view name) {
  return SearchPathW(nullptr, std::wstring(name).c_str(), L".exe", 0, nullptr, nullptr) != 0;
}

CommandLine PartedAt(std::wstring_view text, std::size_t programEnd, std::size_t argumentsBegin) {
  CommandLine parted;
  parted.Program = text.substr(0, programEnd);
  if (argumentsBegin < text.size()) parted.Arguments = text.substr(argumentsBegin);
  return parted;
}

}  // namespace

CommandLine SplitCommandLine(std::wstring_view text) {
  if (text.starts_with(L'"')) {
    text.remove_prefix(1);
    const std::size_t quote = text.find(L'"');
    if (quote == std::wstring_view::npos) return PartedAt(text, text.size(), text.size());
    return PartedAt(text, quote, text.find_first_not_of(L' ', quote + 1));
  }
  for (std::size_t blank = text.find(L' '); blank != std::wstring_view::npos; blank = text.find(L' ', blank + 1)) {
    if (IsProgram(text.substr(0, blank))) return PartedAt(text, blank, blank + 1);
  }
  if (IsProgram(text)) return PartedAt(text, text.size(), text.size());
  const std::size_t word = text.find(L' ');
  return word == std::wstring_view::npos ? PartedAt(text, text.size(), text.size()) : PartedAt(text, word, word + 1);
}

}  // namespace vantor::win32
