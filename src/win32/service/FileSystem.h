#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "service/FileSystem.h"
#include "win32/base/Com.h"
#include "win32/base/Scripting.h"

namespace vantor::win32 {

/// Asks "Scripting.FileSystemObject", and Windows itself for what the object does not offer.
class FileSystem final : public service::FileSystem {
 public:
  explicit FileSystem(Apartment& apartment) : apartment_(apartment) {}

  [[nodiscard]] bool Available() override;
  [[nodiscard]] std::optional<int> DriveType(std::wstring_view path) override;
  [[nodiscard]] bool FileExists(std::wstring_view path) override;
  [[nodiscard]] bool FolderExists(std::wstring_view path) override;
  [[nodiscard]] std::wstring ExtensionName(std::wstring_view path) override;

  [[nodiscard]] std::vector<service::Drive> Drives() override;
  [[nodiscard]] bool DriveReady(std::wstring_view path) override;
  [[nodiscard]] std::vector<std::wstring> Folders(std::wstring_view path) override;
  [[nodiscard]] std::vector<std::wstring> Files(std::wstring_view path, std::wstring_view pattern) override;

  [[nodiscard]] bool OthersMayWrite(std::wstring_view path) override;

  void BeginMany() override { ++many_; }
  void EndMany() override;

 private:
  using Object = ComPointer<scripting::IFileSystem>;

  /// The held object, or a new one. Throws a ComError with Lacking() if there is none.
  [[nodiscard]] Object Make();
  [[nodiscard]] ComPointer<scripting::IDrive> GetDrive(std::wstring_view path);
  using Test = HRESULT (STDMETHODCALLTYPE scripting::IFileSystem::*)(BSTR, VARIANT_BOOL*);
  [[nodiscard]] bool Exists(std::wstring_view path, Test test, bool (*plainTest)(std::wstring_view));

  Apartment& apartment_;
  int many_ = 0;
  Object held_;           // between BeginMany and EndMany, from the first call on
  bool missing_ = false;  // in that time: there is no such object, and it is not asked for again
  struct {
    std::wstring Root;
    ComPointer<scripting::IDrive> Drive;
    std::optional<int> Type;
  } asked_;  // in that time: the drive that was last asked for
};

}  // namespace vantor::win32
