#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <string_view>

#include "win32/DataFiles.h"
#include "win32/Handle.h"

namespace vantor::win32 {

/// An empty folder of its own, with a blank in its name; gone at the end with all that is in it.
class TestFolder {
 public:
  TestFolder() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    Path = folder + (L"vantor test " + std::to_wstring(GetCurrentProcessId()));
    Remove();
    CreateDirectoryW(Path.c_str(), nullptr);
  }
  ~TestFolder() { Remove(); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::wstring operator/(std::wstring_view name) const { return Path + L'\\' + std::wstring(name); }
  /// Makes a file, and returns its path.
  std::wstring Make(std::wstring_view name, std::string_view bytes = "x") const {
    std::wstring path = *this / name;
    const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    return path;
  }

  std::wstring Path;

 private:
  void Remove() const {
    const std::wstring list = Path + L'\0';  // ended by two
    SHFILEOPSTRUCTW remove = {};
    remove.wFunc = FO_DELETE;
    remove.pFrom = list.c_str();
    remove.fFlags = FOF_NO_UI;
    SHFileOperationW(&remove);
  }
};

/// Looks until something is so, for 10 seconds at most.
template <class Condition>
[[nodiscard]] bool Becomes(Condition condition) {
  for (const DWORD begin = GetTickCount(); !condition(); Sleep(10)) {
    if (GetTickCount() - begin > 10000) return false;
  }
  return true;
}

}  // namespace vantor::win32
