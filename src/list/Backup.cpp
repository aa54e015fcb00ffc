#include "list/Backup.h"

namespace vantor::list {
namespace {

// Only the whole text counts: a mark that was broken off in its writing stands before a save's first file.
constexpr std::string_view SaveUnderWay = "\"Saving\"\r\n";

}  // namespace

void Backup::Restore() {
  if (files_.Read(MarkPath()) != SaveUnderWay) return;
  if (!HasKept()) {
    Unmark();
    return;
  }
  std::vector<std::wstring_view> paths = Lists();
  paths.push_back(environment_.Files.Set);
  for (const std::wstring_view path : paths) {
    const std::wstring keptPath = KeptPath(path);
    const auto kept = files_.Read(keptPath);
    if (!kept)
      readKept_ |= fileSystem_.FileExists(keptPath);
    else if (files_.Read(path) != kept && !files_.WriteInPlace(path, *kept))
      readKept_ = true;
  }
  if (!readKept_) Unmark();
}

std::optional<std::string> Backup::Read(std::wstring_view path) {
  return readKept_ ? files_.Read(KeptPath(path)) : files_.Read(path);
}

bool Backup::Write(std::wstring_view path, std::string_view bytes) {
  const auto old = files_.Read(path);
  if (old && *old == bytes) return true;
  if (!save_.Begun) Protect();
  if (!save_.Marked && old) save_.Old.emplace_back(path, *old);
  const bool written = files_.WriteInPlace(path, bytes);
  save_.Failed |= !written;
  return written;
}

void Backup::EndSave() {
  if (save_.Failed) {
    if (!save_.Marked) PutOldBack();
    return;
  }
  if (save_.Marked || readKept_) Unmark();
  whole_ = true;
  readKept_ = false;
}

void Backup::Protect() {
  save_.Begun = true;
  // A restore that is still due has both already, and must not lose its mark even for a moment.
  save_.Marked = readKept_ || ((whole_ ? Keep() : HasKept()) && files_.WriteInPlace(MarkPath(), SaveUnderWay));
}

bool Backup::Keep() const {
  const std::wstring_view set = environment_.Files.Set;
  bool incomplete = false;
  for (const std::wstring_view path : Lists()) {
    const auto bytes = files_.Read(path);
    if (!bytes && fileSystem_.FileExists(path)) return false;
    if (!bytes || files_.Read(KeptPath(path)) == bytes) continue;
    if (!incomplete && !(files_.MakeFolder(Folder()) && files_.Remove(KeptPath(set)))) return false;
    incomplete = true;
    if (!files_.WriteInPlace(KeptPath(path), *bytes)) return false;
  }
  const auto settings = files_.Read(set);
  if (!settings) return false;
  return files_.Read(KeptPath(set)) == settings ||
         (files_.MakeFolder(Folder()) && files_.Write(KeptPath(set), *settings));
}

void Backup::PutOldBack() {
  // First all are emptied, so that on a full disk there is room for every one.
  for (const auto& [path, bytes] : save_.Old) static_cast<void>(files_.WriteInPlace(path, {}));
  for (const auto& [path, bytes] : save_.Old) static_cast<void>(files_.WriteInPlace(path, bytes));
}

void Backup::Unmark() {
  // Emptied first, which reaches the disk, while a removal may wait in Windows' memory.
  static_cast<void>(files_.WriteInPlace(MarkPath(), {}));
  static_cast<void>(files_.Remove(MarkPath()));
}

std::vector<std::wstring_view> Backup::Lists() const {
  const state::DataFilePaths& files = environment_.Files;
  std::vector<std::wstring_view> lists{files.ListFile, files.ListFold, files.ListProg, files.ListWeb};
  if (environment_.RunMode) lists.insert(lists.end(), {files.MachineFile, files.MachineFold, files.MachineProg});
  return lists;
}

std::wstring Backup::KeptPath(std::wstring_view path) const {
  return Folder().append(path.substr(environment_.DataFolder.size()));
}

}  // namespace vantor::list
