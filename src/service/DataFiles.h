#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantor::service {

/// The bytes of the program's own files. Everything fails silently, by its result.
class DataFiles {
 public:
  virtual ~DataFiles() = default;

  /// The whole file; nothing when it is missing or can't be read.
  [[nodiscard]] virtual std::optional<std::string> Read(std::wstring_view path) = 0;
  /// Replaces the whole file. On failure the old file stays whole where the system allows it.
  [[nodiscard]] virtual bool Write(std::wstring_view path, std::string_view bytes) = 0;
  /// The same as opening a file for output does it: emptied and then written. A failure leaves the part that was
  /// written; on success the bytes have reached the disk.
  [[nodiscard]] virtual bool WriteInPlace(std::wstring_view path, std::string_view bytes) = 0;
  /// True also when there is no such file.
  [[nodiscard]] virtual bool Remove(std::wstring_view path) = 0;
  /// Makes a folder in a folder that exists; true also when it is there already.
  [[nodiscard]] virtual bool MakeFolder(std::wstring_view path) = 0;
  /// Whether a folder is missing or holds nothing.
  [[nodiscard]] virtual bool FolderIsEmpty(std::wstring_view path) = 0;

 protected:
  DataFiles() = default;
  DataFiles(const DataFiles&) = default;
  DataFiles& operator=(const DataFiles&) = default;
};

}  // namespace vantor::service
