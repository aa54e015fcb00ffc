#include "win32/base/LongPath.h"

#include <windows.h>

#include "win32/base/SystemText.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

// Folders must leave room for a short file name (MAX_PATH - 12), so this limit is used for all.
constexpr std::size_t LongestOrdinaryPath = MAX_PATH - 13;

DWORD Attributes(std::wstring_view path) {
  const TrueSystemFolder folder;
  return path.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(CallPath(path).c_str());
}

}  // namespace

std::wstring CallPath(std::wstring_view path) {
  if (path.size() <= LongestOrdinaryPath || path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) {
    return std::wstring(path);
  }
  const std::wstring full = FullPath(path);
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
  return L"\\\\?\\" + full;
}

std::wstring FullPath(std::wstring_view path) {
  std::wstring given(path);
  std::wstring full =
      SystemText([&](wchar_t* buffer, DWORD size) { return GetFullPathNameW(given.c_str(), size, buffer, nullptr); });
  return full.empty() ? given : full;
}

bool IsFile(std::wstring_view path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsFolder(std::wstring_view path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace vantor::win32
