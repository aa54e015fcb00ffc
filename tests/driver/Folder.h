#pragma once

#include <string>
#include <utility>
#include <vector>

#include "driver/Desktop.h"

namespace vantor::desktop {

/// The settings file's eleven values; the bar's place is in twips.
struct Settings {
  int OptionMask = 2;
  int FileUpper = -1;
  int FoldUpper = -1;
  int ProgUpper = -1;
  int WebUpper = -1;
  int Left = 0;
  int Top = 0;
  std::string Folder;
  int MachineFileUpper = -1;
  int MachineFoldUpper = -1;
  int MachineProgUpper = -1;

  [[nodiscard]] std::string Bytes() const {
    std::string bytes;
    const auto add = [&bytes](const std::string& value) { bytes += value + "\r\n"; };
    for (const int value : {OptionMask, FileUpper, FoldUpper, ProgUpper, WebUpper, Left, Top})
      add(std::to_string(value));
    add('"' + Folder + '"');
    for (const int value : {MachineFileUpper, MachineFoldUpper, MachineProgUpper}) add(std::to_string(value));
    return bytes;
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
    wchar_t temporary[MAX_PATH];
    const std::wstring given(temporary, GetTempPathW(MAX_PATH, temporary));
    // In its long form, as the program and the shell report paths.
    const std::wstring parent(temporary, GetLongPathNameW(given.c_str(), temporary, MAX_PATH));
    static int count = 0;
    path_ = (root.empty() ? Narrow(parent) : root) + "vantor" + std::to_string(GetCurrentProcessId()) + "-" +
            std::to_string(++count);
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
