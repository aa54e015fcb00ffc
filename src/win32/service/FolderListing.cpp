#include "win32/service/FolderListing.h"

#include <windows.h>

#include <algorithm>

#include "win32/base/Handle.h"
#include "win32/base/LongPath.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

/// Whether a name has the pattern's ending. No other patterns are used, and PathMatchSpec would load a library at the
/// start.
bool Matches(std::wstring_view name, std::wstring_view pattern) {
  if (pattern == L"*.*") return true;
  const std::wstring_view ending = pattern.substr(1);
  if (name.size() < ending.size()) return false;
  const int length = static_cast<int>(ending.size());
  return CompareStringOrdinal(name.data() + name.size() - ending.size(), length, ending.data(), length, TRUE) ==
         CSTR_EQUAL;
}

bool Wanted(const WIN32_FIND_DATAW& entry, EntryKind kind, std::wstring_view pattern) {
  // As in Explorer by default: files with only the system attribute, such as the fonts folder, are shown.
  if ((entry.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0) return false;
  const bool folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (folder != (kind == EntryKind::Folders)) return false;
  const std::wstring_view name = entry.cFileName;
  if (folder && (name == L"." || name == L"..")) return false;
  // The system's own search also takes names whose short form fits: "a.exe1" is A12345~1.EXE there.
  return Matches(name, pattern);
}

bool ComesBefore(const std::wstring& left, const std::wstring& right) {
  const int order = CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE | SORT_STRINGSORT, left.data(),
                                   static_cast<int>(left.size()), right.data(), static_cast<int>(right.size()));
  // Names that differ only in case have a fixed order too.
  return order == CSTR_EQUAL ? left < right : order == CSTR_LESS_THAN;
}

FindHandle FindFirst(const std::wstring& search, WIN32_FIND_DATAW& entry) {
  const TrueSystemFolder folder;
  return FindHandle(FindFirstFileExW(search.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                     FIND_FIRST_EX_LARGE_FETCH));
}

}  // namespace

std::vector<std::wstring> ListFolder(std::wstring_view folder, EntryKind kind, std::wstring_view pattern) {
  std::vector<std::wstring> names;
  if (folder.empty()) return names;
  std::wstring search(folder);
  if (search.back() != L'\\' && search.back() != L'/') search += L'\\';
  search += L'*';

  WIN32_FIND_DATAW entry;
  const FindHandle found = FindFirst(CallPath(search), entry);
  if (!found) return names;
  do {
    if (Wanted(entry, kind, pattern)) names.emplace_back(entry.cFileName);
  } while (FindNextFileW(found.Get(), &entry));
  std::sort(names.begin(), names.end(), ComesBefore);
  return names;
}

}  // namespace vantor::win32
