#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantor::service {

/// What a file holds, or why that is not known.
struct FileRead {
  std::optional<std::string> Bytes;
  bool Missing = false;  // there is no such file, for certain

  /// There is, or may be, such a file, and it can't be read.
  [[nodiscard]] bool Failed() const { return !Bytes && !Missing; }
};

/// Ends the name of a file that Write has begun and not finished.
inline constexpr wchar_t UnfinishedEnding = L'~';

/// The bytes of the program's own files. Everything fails silently, by its result.
class DataFiles {
 public:
  virtual ~DataFiles() = default;

  /// The whole file, by one attempt.
  [[nodiscard]] virtual FileRead Read(std::wstring_view path) = 0;
  /// Lets some time pass, for whoever holds a file.
  virtual void Pause(int milliseconds) = 0;
  /// Replaces the whole file. On failure the old file stays whole where the system allows it.
  [[nodiscard]] virtual bool Write(std::wstring_view path, std::string_view bytes) = 0;
  /// The same as opening a file for output does it: emptied and then written. A failure leaves the part that was
  /// written; on success the bytes have reached the disk.
  [[nodiscard]] virtual bool WriteInPlace(std::wstring_view path, std::string_view bytes) = 0;
  /// Moves a file to another folder, over any that is there. Where the program ends meanwhile, one of the two names has
  /// it. False, with nothing done, also when a new file in its place would not be like it, or it may not be written.
  [[nodiscard]] virtual bool Move(std::wstring_view from, std::wstring_view to) = 0;
  /// Whether a file that is there may be written. Found out without writing; true also while somebody holds it.
  [[nodiscard]] virtual bool CanWrite(std::wstring_view path) = 0;
  /// True also when there is no such file.
  [[nodiscard]] virtual bool Remove(std::wstring_view path) = 0;
  /// Makes a folder in a folder that exists; true also when it is there already.
  [[nodiscard]] virtual bool MakeFolder(std::wstring_view path) = 0;
  /// The names of all that a folder holds, hidden ones too; none when it is missing. Nothing when it can't be read.
  [[nodiscard]] virtual std::optional<std::vector<std::wstring>> FolderEntries(std::wstring_view path) = 0;

 protected:
  DataFiles() = default;
  DataFiles(const DataFiles&) = default;
  DataFiles& operator=(const DataFiles&) = default;
};

}  // namespace vantor::service
