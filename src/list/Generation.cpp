#include "list/Generation.h"

#include "list/DataFile.h"

namespace vantor::list {
namespace {

// Only the whole text counts: a mark that was broken off in its writing stands before a save's first file.
constexpr std::string_view SaveUnderWay = "\"Saving\"\r\n";

}  // namespace

void Generation::Restore() {
  const service::FileRead mark = ReadPatiently(files_, MarkPath());
  markUnread_ = mark.Failed();
  if (mark.Bytes != SaveUnderWay) return;
  if (ReadPatiently(files_, KeptPath(environment_.Files.Set)).Missing) {
    Unmark();
    return;
  }
  for (const std::wstring& path : All()) {
    const service::FileRead kept = ReadPatiently(files_, KeptPath(path));
    const bool differs = kept.Bytes && files_.Read(path).Bytes != kept.Bytes;
    readKept_ |= kept.Failed() || (differs && !files_.WriteInPlace(path, *kept.Bytes));
  }
  if (!readKept_) Unmark();
}

service::FileRead Generation::Read(std::wstring_view path) {
  return ReadPatiently(files_, readKept_ ? KeptPath(path) : path);
}

void Generation::BeginSave(bool overUnread) {
  save_ = {};
  if (!whole_ || overUnread) save_.Elsewhere = !rescue_.Copy(AsFound());
}

void Generation::Write(std::wstring_view path, std::string_view bytes) {
  if (save_.Elsewhere) {
    save_.Failed |= !rescue_.Write(path, bytes);
    return;
  }
  const service::FileRead old = files_.Read(path);
  if (old.Bytes == bytes) return;
  if (!save_.Begun) Protect();
  if ((!save_.Marked || !whole_) && !old.Failed()) save_.Old.emplace_back(path, old.Bytes);
  save_.Failed |= !files_.WriteInPlace(path, bytes);
}

void Generation::EndSave() {
  if (save_.Elsewhere) {
    if (!save_.Failed) rescue_.Note();
    return;
  }
  if (save_.Failed) {
    // What is kept is older than a generation that was not read whole.
    if (!save_.Marked || !whole_) PutOldBack();
    if (save_.Marked && !whole_ && !readKept_) Unmark();
    return;
  }
  if (save_.Marked || readKept_) Unmark();
  whole_ = true;
  readKept_ = false;
}

void Generation::Protect() {
  save_.Begun = true;
  // A restore that is still due has both already, and must not lose its mark even for a moment.
  save_.Marked = readKept_ || (((!whole_ && HasKept()) || Keep()) && files_.WriteInPlace(MarkPath(), SaveUnderWay));
}

bool Generation::Keep() const {
  const std::wstring_view set = environment_.Files.Set;
  bool incomplete = false;
  for (const std::wstring& path : Lists()) {
    const service::FileRead list = files_.Read(path);
    if (list.Failed()) return false;
    if (list.Missing || files_.Read(KeptPath(path)).Bytes == list.Bytes) continue;
    if (!incomplete && !(files_.MakeFolder(Folder()) && files_.Remove(KeptPath(set)))) return false;
    incomplete = true;
    if (!files_.WriteInPlace(KeptPath(path), *list.Bytes)) return false;
  }
  const auto settings = files_.Read(set).Bytes;
  if (!settings) return false;
  return files_.Read(KeptPath(set)).Bytes == settings ||
         (files_.MakeFolder(Folder()) && files_.Write(KeptPath(set), *settings));
}

void Generation::PutOldBack() {
  // First all are emptied, so that on a full disk there is room for every one.
  for (const auto& [path, bytes] : save_.Old) static_cast<void>(files_.WriteInPlace(path, {}));
  for (const auto& [path, bytes] : save_.Old)
    static_cast<void>(bytes ? files_.WriteInPlace(path, *bytes) : files_.Remove(path));
}

void Generation::Unmark() {
  // Emptied first, which reaches the disk, while a removal may wait in Windows' memory.
  static_cast<void>(files_.WriteInPlace(MarkPath(), {}));
  static_cast<void>(files_.Remove(MarkPath()));
}

std::vector<std::wstring> Generation::Lists() const { return environment_.Files.Lists(); }

std::vector<std::wstring> Generation::All() const {
  std::vector<std::wstring> all = Lists();
  all.push_back(environment_.Files.Set);
  return all;
}

std::vector<std::wstring> Generation::AsFound() const {
  std::vector<std::wstring> all = All();
  if (!markUnread_ && !readKept_) return all;
  for (const std::wstring& path : All()) all.push_back(KeptPath(path));
  all.push_back(MarkPath());
  return all;
}

std::wstring Generation::KeptPath(std::wstring_view path) const {
  return Folder().append(path.substr(environment_.DataFolder.size()));
}

}  // namespace vantor::list
