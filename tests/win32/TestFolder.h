#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "driver/Desktop.h"

namespace vantor::win32 {

/// An empty temporary folder with a blank in its name; deleted at the end with its contents.
class TestFolder {
 public:
  TestFolder() { std::filesystem::create_directory(Path); }
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::wstring operator/(std::wstring_view name) const { return Path + L'\\' + std::wstring(name); }
  /// Creates a file and returns its path.
  std::wstring Make(std::wstring_view name, std::string_view bytes = "x") const {
    std::wstring path = *this / name;
    std::ofstream(std::filesystem::path(path), std::ios::binary) << bytes;
    return path;
  }

  std::wstring Path =
      std::filesystem::temp_directory_path() / (L"vantor test " + std::to_wstring(GetCurrentProcessId()));
};

/// Runs a check with a scripting or management object (true) and then, if the registry belongs to the test, without it,
/// as after an administrator has removed its class (false).
template <class Action>
void WithAndWithout(const std::wstring& className, Action action) {
  action(true);
  if (!desktop::OwnDesktop()) return;
  const std::wstring key = L"Software\\Classes\\" + className + L"\\CLSID";
  const std::string id = desktop::RegistryText(HKEY_LOCAL_MACHINE, key, L"");
  desktop::SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", L"{00000000-1111-2222-3333-444444444444}");
  action(false);
  desktop::SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", desktop::Wide(id));
}

}  // namespace vantor::win32
