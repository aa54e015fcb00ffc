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
  std::string Folder;

  [[nodiscard]] std::string Bytes() const {
    std::string bytes;
    for (const int value : {OptionMask, -1, -1, ProgUpper, WebUpper, Left, Top})
      bytes += std::to_string(value) + "\r\n";
    return bytes + '"' + Folder + "\"\r\n-1\r\n-1\r\n-1\r\n";
  }
};

/// The bytes of a list file.
using Items = std::vector<std::pair<std::string, std::string>>;
inline std::string ListBytes(const Items& items) {
  std::string bytes;
  for (const auto& [name, target] : items) {
    bytes.append("\"").append(name).append("\",\"").append(target).append("\"\r\n");
  }
  return bytes;
}

/// A folder for one test, with the program in it; deleted when the test ends.
class Folder {
 public:
  /// In the temporary folder, or in the root of the drive that is named ("E:\\").
  explicit Folder(const std::string& root = {}) {
    static int count = 0;
    const std::wstring given = root.empty() ? std::filesystem::temp_directory_path().wstring() : Wide(root);
    // In its long form, as the program and the shell report paths.
    wchar_t parent[MAX_PATH];
    GetLongPathNameW(given.c_str(), parent, MAX_PATH);
    const std::string name = "vantor" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    path_ = Narrow(std::filesystem::path(parent) / name);
    CopyProgram("Vantor.exe", "Vantor.exe");
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(Wide(path_), ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  /// Full path of a name in the folder; without one, that of the folder.
  [[nodiscard]] std::string Path(const std::string& name = {}) const {
    return name.empty() ? path_ : path_ + "\\" + name;
  }
  /// Replaces a file, making the folders that it needs.
  void Write(const std::string& name, const std::string& bytes = {}) const {
    std::ofstream(Place(name), std::ios::binary) << bytes;
  }
  [[nodiscard]] std::string Read(const std::string& name) const { return BytesOf(Path(name)); }
  /// Copies a program that was built in the same folder as this one.
  void CopyProgram(const std::string& program, const std::string& name) const {
    std::filesystem::copy_file(Beside(Wide(program)), Place(name), std::filesystem::copy_options::overwrite_existing);
  }
  /// A data file, by its name without the ending.
  void WriteData(const std::string& name, const std::string& bytes) const {
    Write("Vantor\\" + name + ".Orbel", bytes);
  }
  [[nodiscard]] std::string Data(const std::string& name) const { return Read("Vantor\\" + name + ".Orbel"); }
  /// What the program finds if it is not its first start: settings and a user's name.
  void WriteSettings(const Settings& settings) const {
    WriteData("Set", settings.Bytes());
    WriteData("User", "\"Anna\"\r\n");
  }

 private:
  [[nodiscard]] std::filesystem::path Place(const std::string& name) const {
    std::filesystem::path path = Wide(Path(name));
    std::filesystem::create_directories(path.parent_path());
    return path;
  }

  std::string path_;
};

}  // namespace vantor::desktop
