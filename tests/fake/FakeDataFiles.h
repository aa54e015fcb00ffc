#pragma once

#include "FakeDisk.h"
#include "service/DataFiles.h"

namespace vantor::fake {

class FakeDataFiles : public service::DataFiles {
 public:
  explicit FakeDataFiles(FakeDisk& disk) : disk_(disk) {}

  std::optional<std::string> Read(std::wstring_view path) override {
    const auto* entry = disk_.Find(path);
    if (!entry || entry->IsFolder || !entry->Readable) return std::nullopt;
    return entry->Bytes;
  }
  bool Write(std::wstring_view path, std::string_view bytes) override { return disk_.Write(path, bytes); }
  bool WriteInPlace(std::wstring_view path, std::string_view bytes) override { return disk_.Write(path, bytes); }
  bool Remove(std::wstring_view path) override { return disk_.RemoveFile(path); }
  bool MakeFolder(std::wstring_view path) override { return disk_.MakeFolder(path); }
  bool FolderIsEmpty(std::wstring_view path) override { return disk_.In(path).empty(); }

 private:
  FakeDisk& disk_;
};

}  // namespace vantor::fake
