#pragma once

#include <string>
#include <utility>
#include <vector>

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

  [[nodiscard]] std::string Bytes() const;
};

/// The bytes of a list file.
using Items = std::vector<std::pair<std::string, std::string>>;
std::string ListBytes(const Items& items);

/// A folder of a test's own, with the program in it; gone when the test ends.
class Folder {
 public:
  /// In the temporary folder, or in the root of the drive that is named ("E:\\").
  explicit Folder(const std::string& root = {});
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  /// Full path of a name in the folder, in UTF-8; without one, that of the folder.
  [[nodiscard]] std::string Path(const std::string& name = {}) const;
  /// Replaces a file, making the folders that it needs.
  void Write(const std::string& name, const std::string& bytes) const;
  /// The bytes of a file; "(none)" when there is none.
  [[nodiscard]] std::string Read(const std::string& name) const;
  void MakeFolder(const std::string& name) const;
  /// Takes the whole folder to the root of another drive, as its medium put in there would.
  void MoveTo(const std::string& root);
  /// Copies a program that was built beside this one.
  void CopyProgram(const std::string& program, const std::string& name) const;

  /// What the program finds when it is not its first start: settings and a user's name.
  void WriteSettings(const Settings& settings, const std::string& user = "Anna") const;
  /// The bytes that settings are saved as: where none was chosen, the folder shown last is the program's own.
  [[nodiscard]] std::string Saved(Settings settings) const;

 private:
  std::string path_;
};

}  // namespace vantor::desktop
