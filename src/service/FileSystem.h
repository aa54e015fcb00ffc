#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantor::service {

struct Drive {
  wchar_t Letter = L'?';  // upper case
  int Type = 0;           // the scripting file system's numbering, 0 to 5; 2 is a fixed disk
  std::wstring Label;     // "" when it has none or is not ready
};

/// Drives, files and folders, as seen by "Scripting.FileSystemObject".
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Whether the object is available. The program does not start without it; if it becomes unavailable later, plain
  /// Windows calls are used instead.
  [[nodiscard]] virtual bool Available() { return true; }
  /// The type of the drive that a path begins with ("C:", "C:\x", "\\server\share\"): 0 unknown, 1 removable, 2 fixed,
  /// 3 network, 4 CD, 5 RAM disk. Nothing if there is no such drive or it can't be examined.
  [[nodiscard]] virtual std::optional<int> DriveType(std::wstring_view path) = 0;
  [[nodiscard]] virtual bool FileExists(std::wstring_view path) = 0;
  [[nodiscard]] virtual bool FolderExists(std::wstring_view path) = 0;
  /// What follows the last dot of the file name, in its original case; "" without a dot.
  [[nodiscard]] virtual std::wstring ExtensionName(std::wstring_view path) = 0;

  [[nodiscard]] virtual std::vector<Drive> Drives() = 0;
  /// Whether the drive of a path can be read now.
  [[nodiscard]] virtual bool DriveReady(std::wstring_view path) = 0;
  /// The names of the folders in a folder, sorted without regard to case and without hidden ones, as in Explorer by
  /// default. Empty if the folder can't be read.
  [[nodiscard]] virtual std::vector<std::wstring> Folders(std::wstring_view path) = 0;
  /// The same for the files whose names match `pattern`: "*" and an ending ("*.exe"), or "*.*", which is every name.
  [[nodiscard]] virtual std::vector<std::wstring> Files(std::wstring_view path, std::wstring_view pattern) = 0;

  /// Whether another ordinary user may change, replace or take ownership of the file or folder, or create something in
  /// the folder. True if this can't be determined.
  [[nodiscard]] virtual bool OthersMayWrite(std::wstring_view path) = 0;

  /// Between these two calls, one object answers all questions instead of a new one each, and a drive is asked for its
  /// type once. They may be nested.
  virtual void BeginMany() {}
  virtual void EndMany() {}
};

/// Keeps one file-system object for the duration of a start, a load or a save.
class ManyFileCalls {
 public:
  explicit ManyFileCalls(FileSystem& files) : files_(files) { files_.BeginMany(); }
  ~ManyFileCalls() { files_.EndMany(); }
  ManyFileCalls(const ManyFileCalls&) = delete;
  ManyFileCalls& operator=(const ManyFileCalls&) = delete;

 private:
  FileSystem& files_;
};

}  // namespace vantor::service
