#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "service/DataFiles.h"

namespace vantor::win32 {

/// The program's own files. Write replaces a file by a complete new one, so that a power cut never leaves half a file.
class DataFiles final : public service::DataFiles {
 public:
  [[nodiscard]] service::FileRead Read(std::wstring_view path) override;
  void Pause(int milliseconds) override;
  [[nodiscard]] bool Write(std::wstring_view path, std::string_view bytes) override;
  [[nodiscard]] bool WriteInPlace(std::wstring_view path, std::string_view bytes) override;
  [[nodiscard]] bool Move(std::wstring_view from, std::wstring_view to) override;
  [[nodiscard]] bool CanWrite(std::wstring_view path) override;
  [[nodiscard]] bool Remove(std::wstring_view path) override;
  [[nodiscard]] bool MakeFolder(std::wstring_view path) override;
  [[nodiscard]] std::optional<std::vector<std::wstring>> FolderEntries(std::wstring_view path) override;
};

}  // namespace vantor::win32
