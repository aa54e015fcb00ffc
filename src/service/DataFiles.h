#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantor::service {

/// The contents of a file, or why they are unknown.
struct FileRead {
  std::optional<std::string> Bytes;
  bool Missing = false;  // there is definitely no such file

  /// The file exists, or may exist, but can't be read.
  [[nodiscard]] bool Failed() const { return !Bytes && !Missing; }
};

/// The extension of a file that Write has started but not finished.
inline constexpr wchar_t UnfinishedEnding = L'~';

/// Access to the program's own files. Failures are reported only by the results.
class DataFiles {
 public:
  virtual ~DataFiles() = default;

  /// Reads the whole file, in one attempt.
  [[nodiscard]] virtual FileRead Read(std::wstring_view path) = 0;
  /// Waits, to give other programs time to release a file.
  virtual void Pause(int milliseconds) = 0;
  /// Replaces the whole file. On failure the old file stays intact if the system allows it.
  [[nodiscard]] virtual bool Write(std::wstring_view path, std::string_view bytes) = 0;
  /// The same in the way of opening a file for output: it is emptied and then written. After a failure it holds the
  /// part that was written; on success the bytes have reached the disk.
  [[nodiscard]] virtual bool WriteInPlace(std::wstring_view path, std::string_view bytes) = 0;
  /// Moves a file to another folder, replacing any file there. If the program is ended meanwhile, the file has one of
  /// the two names. Returns false and does nothing also if a new file in its place would have other attributes, or if
  /// it may not be written.
  [[nodiscard]] virtual bool Move(std::wstring_view from, std::wstring_view to) = 0;
  /// Whether an existing file may be written. Checked without writing; also true while another program holds the file.
  [[nodiscard]] virtual bool CanWrite(std::wstring_view path) = 0;
  /// Also returns true if there is no such file.
  [[nodiscard]] virtual bool Remove(std::wstring_view path) = 0;
  /// Creates a folder in an existing folder. Also returns true if it exists already.
  [[nodiscard]] virtual bool MakeFolder(std::wstring_view path) = 0;
  /// The names of everything in a folder, including hidden files; empty if the folder does not exist. Nothing if it
  /// can't be read.
  [[nodiscard]] virtual std::optional<std::vector<std::wstring>> FolderEntries(std::wstring_view path) = 0;
};

}  // namespace vantor::service
