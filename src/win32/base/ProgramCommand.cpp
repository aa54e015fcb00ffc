#include "win32/base/ProgramCommand.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "text/Path.h"
#include "win32/base/LongPath.h"
#include "win32/base/SystemLibrary.h"
#include "win32/base/SystemText.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

constexpr wchar_t ProgramEnding[] = L".exe";

/// The folders searched for a name without a folder, in CreateProcess's order.
std::wstring SearchFolders() {
  const std::wstring windows = WindowsFolder();
  return SystemFolder() + L';' + windows + L"\\System;" + windows + L';' + EnvironmentVariable(L"PATH");
}

std::wstring FindOnPath(const std::wstring& name) {
  if (name.find(L':') != std::wstring::npos) return {};  // an address
  const std::wstring folders = SearchFolders();
  const TrueSystemFolder folder;
  std::wstring found = SystemText([&](wchar_t* buffer, DWORD size) {
    return SearchPathW(folders.c_str(), name.c_str(), ProgramEnding, size, buffer, nullptr);
  });
  return IsFile(found) ? found : std::wstring();
}

bool NamesFolder(std::wstring_view name) {
  return !text::DriveName(name).empty() || name.starts_with(L'\\') || name.starts_with(L'/');
}

/// The full path of a program; "" if there is none with this name.
std::wstring FindProgram(std::wstring_view name) {
  std::wstring given(name);
  if (given.empty()) return {};
  if (!NamesFolder(name)) return FindOnPath(given);
  if (IsFile(given)) return FullPath(given);
  if (name.find(L'.', name.find_last_of(L"\\/:")) != std::wstring_view::npos) return {};
  given += ProgramEnding;
  return IsFile(given) ? FullPath(given) : std::wstring();
}

ProgramCommand PartedAt(std::wstring_view text, std::size_t programEnd, std::size_t argumentsBegin) {
  ProgramCommand parted;
  parted.Program = text.substr(0, programEnd);
  if (argumentsBegin < text.size()) parted.Arguments = text.substr(argumentsBegin);
  return parted;
}

ProgramCommand PartQuoted(std::wstring_view text) {
  text.remove_prefix(1);
  const std::size_t quote = text.find(L'"');
  ProgramCommand parted = quote == std::wstring_view::npos
                              ? PartedAt(text, text.size(), text.size())
                              : PartedAt(text, quote, text.find_first_not_of(L' ', quote + 1));
  parted.Path = FindProgram(parted.Program);
  return parted;
}

}  // namespace

ProgramCommand ParseProgramCommand(std::wstring_view text) {
  if (text.starts_with(L'"')) return PartQuoted(text);
  if (NamesFolder(text) && IsFile(text)) {
    ProgramCommand whole = PartedAt(text, text.size(), text.size());
    whole.Path = FullPath(text);
    return whole;
  }
  for (std::size_t blank = text.find(L' ');; blank = text.find(L' ', blank + 1)) {
    const std::size_t end = std::min(blank, text.size());
    if (std::wstring path = FindProgram(text.substr(0, end)); !path.empty()) {
      ProgramCommand parted = PartedAt(text, end, end + 1);
      parted.Path = std::move(path);
      return parted;
    }
    if (blank == std::wstring_view::npos) break;
  }
  const std::size_t word = std::min(text.find(L' '), text.size());
  return PartedAt(text, word, word + 1);
}

}  // namespace vantor::win32
