#pragma once

#include "FakeDisk.h"
#include "service/FileSystem.h"

namespace vantor::fake {

class FakeFileSystem : public service::FileSystem {
 public:
  explicit FakeFileSystem(FakeDisk& disk) : disk_(disk) {}

  int ExistenceChecks = 0;
  int OpenObjects = 0;  // BeginMany without its EndMany

  bool Present = true;

  bool Available() override { return Present; }
  std::optional<int> DriveType(std::wstring_view root) override {
    if (root.starts_with(L"\\\\")) return 3;
    const auto* drive = disk_.DriveOf(root);
    if (!drive || !drive->Examinable) return std::nullopt;
    return drive->Type;
  }
  bool FileExists(std::wstring_view path) override {
    ++ExistenceChecks;
    return disk_.HasFile(path);
  }
  bool FolderExists(std::wstring_view path) override {
    ++ExistenceChecks;
    return disk_.FolderExists(path);
  }
  std::wstring ExtensionName(std::wstring_view path) override {
    const std::wstring_view name = path.substr(path.find_last_of(L'\\') + 1);
    const auto dot = name.rfind(L'.');
    return dot == std::wstring_view::npos ? L"" : std::wstring(name.substr(dot + 1));
  }

  std::vector<service::Drive> Drives() override {
    std::vector<service::Drive> result;
    for (const auto& [letter, state] : disk_.Drives())
      result.push_back({letter, state.Type, state.Ready ? state.Label : L""});
    return result;
  }
  bool DriveReady(std::wstring_view path) override {
    const auto* drive = disk_.DriveOf(path);
    return drive && drive->Ready;
  }
  std::vector<std::wstring> Folders(std::wstring_view path) override { return Names(path, true, L"*.*"); }
  std::vector<std::wstring> Files(std::wstring_view path, std::wstring_view pattern) override {
    return Names(path, false, pattern);
  }

  void BeginMany() override { ++OpenObjects; }
  void EndMany() override { --OpenObjects; }

 private:
  std::vector<std::wstring> Names(std::wstring_view folder, bool folders, std::wstring_view pattern) {
    std::vector<std::wstring> names;
    for (const auto* entry : disk_.In(folder)) {
      const std::wstring name = entry->Path.substr(entry->Path.find_last_of(L'\\') + 1);
      if (entry->IsFolder == folders && !entry->Hidden && Fits(name, pattern)) names.push_back(name);
    }
    return names;
  }
  static bool Fits(std::wstring_view name, std::wstring_view pattern) {
    if (pattern == L"*.*" || pattern.empty()) return pattern == L"*.*" || name.empty();
    if (pattern[0] == L'*') return Fits(name, pattern.substr(1)) || (!name.empty() && Fits(name.substr(1), pattern));
    if (name.empty()) return false;
    return (pattern[0] == L'?' || Fold(name[0]) == Fold(pattern[0])) && Fits(name.substr(1), pattern.substr(1));
  }
  static wchar_t Fold(wchar_t c) { return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c; }

  FakeDisk& disk_;
};

}  // namespace vantor::fake
