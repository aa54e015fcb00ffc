#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "driver/Desktop.h"

namespace vantor::win32 {

using desktop::Eventually;
using desktop::OwnDesktop;
using desktop::UnderWine;

/// An empty temporary folder with a blank in its name; deleted at the end with its contents.
class TestFolder {
 public:
  TestFolder() {
    Remove();
    std::filesystem::create_directory(Path);
  }
  ~TestFolder() { Remove(); }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  [[nodiscard]] std::wstring operator/(std::wstring_view name) const { return Path + L'\\' + std::wstring(name); }
  /// Makes a file, and returns its path.
  std::wstring Make(std::wstring_view name, std::string_view bytes = "x") const {
    std::wstring path = *this / name;
    std::ofstream(std::filesystem::path(path), std::ios::binary) << bytes;
    return path;
  }

  std::wstring Path =
      std::filesystem::temp_directory_path() / (L"vantor test " + std::to_wstring(GetCurrentProcessId()));

 private:
  void Remove() const {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
};

}  // namespace vantor::win32
