#pragma once

#include <string>
#include <utility>
#include <vector>

#include "driver/Desktop.h"

namespace vantor::desktop {

/// The settings file's values that tests change; the other lists are empty. The bar's place is in twips.
struct Settings {
  int OptionMask = 2;
  int ProgUpper = -1;
  int WebUpper = -1;
  int Left = 0;
  int Top = 0;
  std::wstring Folder;

  [[nodiscard]] std::string Bytes() const {
    std::string bytes;
    for (const int value : {OptionMask, -1, -1, ProgUpper, WebUpper, Left, Top})
      bytes += std::to_string(value) + "\r\n";
    return bytes + '"' + Narrow(Folder) + "\"\r\n-1\r\n-1\r\n-1\r\n";
  }
};

/// The bytes of a list file.
using Items = std::vector<std::pair<std::wstring, std::wstring>>;
inline std::string ListBytes(const Items& items) {
  std::string bytes;
  for (const auto& [name, target] : items) bytes += '"' + Narrow(name) + "\",\"" + Narrow(target) + "\"\r\n";
  return bytes;
}

/// A folder for one test; deleted when the test ends.
class Folder {
 public:
  /// In the temporary folder, or in the root of a drive (L"E:\\").
  explicit Folder(const std::wstring& root = std::filesystem::temp_directory_path(), const std::wstring& ending = {}) {
    static int count = 0;
    // In its long form, as the program and the shell report paths.
    wchar_t parent[MAX_PATH];
    GetLongPathNameW(root.c_str(), parent, MAX_PATH);
    const std::wstring name = L"vantor" + std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(++count);
    Path = std::filesystem::path(parent) / (name + ending);
    std::filesystem::create_directory(Path);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  [[nodiscard]] std::wstring operator/(const std::wstring& name) const { return Path + L'\\' + name; }
  /// Replaces a file, making the folders that it needs. Returns its path.
  std::wstring Write(const std::wstring& name, const std::string& bytes = {}) const {
    std::filesystem::path path = *this / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }
  [[nodiscard]] std::string Read(const std::wstring& name) const { return BytesOf(*this / name); }
  /// Copies a program that was built in the same folder as this one, unless it is there. Returns its path.
  std::wstring CopyProgram(const std::wstring& program, const std::wstring& name) const {
    return Exists(*this / name) ? *this / name : Write(name, BytesOf(Beside(program)));
  }
  /// A data file, by its name without the ending.
  void WriteData(const std::wstring& name, const std::string& bytes) const {
    Write(L"Vantor\\" + name + L".Orbel", bytes);
  }
  [[nodiscard]] std::string Data(const std::wstring& name) const { return Read(L"Vantor\\" + name + L".Orbel"); }
  /// What the program finds if it is not its first start: settings and a user's name.
  void WriteSettings(const Settings& settings) const {
    WriteData(L"Set", settings.Bytes());
    WriteData(L"User", "\"Anna\"\r\n");
  }

  std::wstring Path;
};

}  // namespace vantor::desktop
