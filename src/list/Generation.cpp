#include "list/Generation.h"

#include <algorithm>
#include <utility>

#include "list/DataFile.h"

namespace vantor::list {

// Only the complete text counts: a truncated mark means that not even the first file of the save was written.
constexpr std::string_view SaveUnderWay = "\"Saving\"\r\n";

void Generation::Restore() {
  const service::FileRead mark = ReadPatiently(files_, MarkPath());
  markUnread_ = mark.Failed();
  if (mark.Bytes != SaveUnderWay) return;
  if (ReadPatiently(files_, KeptPath(environment_.Files.Set)).Missing) {
    readMoved_ = !PutMovedBack();
  } else {
    for (const std::wstring_view path : All()) {
      const service::FileRead kept = ReadPatiently(files_, KeptPath(path));
      const bool differs = kept.Bytes && !Holds(path, *kept.Bytes);
      readKept_ |= kept.Failed() || (differs && !files_.WriteInPlace(path, *kept.Bytes));
    }
  }
  if (!readKept_ && !readMoved_) Unmark();
}

service::FileRead Generation::Read(std::wstring_view path) {
  service::FileRead read = ReadPatiently(files_, readKept_ ? KeptPath(path) : path);
  return read.Missing && readMoved_ ? ReadPatiently(files_, KeptPath(path)) : read;
}

void Generation::BeginSave(bool overUnread) {
  changes_.clear();
  elsewhere_ = (!whole_ || overUnread) && !rescue_.Copy(AsFound());
}

void Generation::Write(std::wstring_view path, std::string bytes) {
  service::FileRead old = files_.Read(path);
  if (elsewhere_ || old.Bytes != bytes) changes_.push_back({path, std::move(bytes), std::move(old)});
}

void Generation::EndSave() {
  if (elsewhere_) return SaveElsewhere();
  const Kept kept = changes_.empty() ? Kept::None : Protect();
  bool failed = false;
  for (const Change& change : changes_) failed |= !files_.WriteInPlace(change.Path, change.Bytes);
  if (failed) {
    if (kept != Kept::Replaced) PutOldBack();
    if (kept == Kept::Older) Unmark();
    rescue_.Begin();
    return SaveElsewhere();
  }
  if (!changes_.empty() || readKept_) Unmark();
  whole_ = true;
  readKept_ = readMoved_ = false;
}

void Generation::SaveElsewhere() {
  const bool written = std::all_of(changes_.begin(), changes_.end(),
                                   [this](const Change& change) { return rescue_.Write(change.Path, change.Bytes); });
  if (written) return rescue_.Note();
  for (const Change& change : changes_) rescue_.Remove(change.Path);
}

Generation::Kept Generation::Protect() {
  // A pending restore has both already, and must not lose its mark even for a moment.
  if (readKept_) return Kept::Replaced;
  if (!whole_ && HasKept()) return Mark() ? Kept::Older : Kept::None;
  // If that fails, writing the files puts what was moved back in place.
  return Keep(whole_ && !environment_.RunMode) ? Kept::Replaced : Kept::None;
}

bool Generation::Keep(bool byMoving) {
  bool complete = true;  // what is kept
  const auto begin = [&] {
    return !std::exchange(complete, false) ||
           (files_.MakeFolder(Folder()) && files_.Remove(KeptPath(environment_.Files.Set)));
  };
  for (const std::wstring_view path : environment_.Files.Lists()) {
    if (byMoving && WillReplace(path)) continue;
    const service::FileRead list = files_.Read(path);
    if (list.Failed()) return false;
    if (list.Missing || Holds(KeptPath(path), *list.Bytes)) continue;
    if (!begin() || !files_.WriteInPlace(KeptPath(path), *list.Bytes)) return false;
  }
  if (!byMoving) return KeepSettings() && Mark();
  return begin() && Mark() && MoveAside() && KeepSettings();
}

bool Generation::KeepSettings() {
  const std::wstring& set = environment_.Files.Set;
  const auto settings = files_.Read(set).Bytes;
  if (!settings) return false;
  return Holds(KeptPath(set), *settings) || (files_.MakeFolder(Folder()) && files_.Write(KeptPath(set), *settings));
}

bool Generation::MoveAside() {
  const auto keep = [this](const Change& change) {
    if (!change.Old.Bytes || change.Path == environment_.Files.Set) return true;
    const std::wstring kept = KeptPath(change.Path);
    return files_.Move(change.Path, kept) || files_.WriteInPlace(kept, *change.Old.Bytes);
  };
  return std::all_of(changes_.begin(), changes_.end(), keep);
}

bool Generation::PutMovedBack() {
  bool back = true;
  for (const std::wstring_view path : environment_.Files.Lists()) {
    const bool moved = ReadPatiently(files_, path).Missing && !ReadPatiently(files_, KeptPath(path)).Missing;
    back &= !moved || files_.Move(KeptPath(path), path);
  }
  return back;
}

void Generation::PutOldBack() {
  // First all are emptied, so that there is room for each of them even on a full disk.
  for (const bool empty : {true, false}) {
    for (const Change& change : changes_) {
      if (change.Old.Failed()) continue;
      if (empty || change.Old.Bytes)
        static_cast<void>(files_.WriteInPlace(change.Path, empty ? std::string_view() : *change.Old.Bytes));
      else
        static_cast<void>(files_.Remove(change.Path));
    }
  }
}

bool Generation::Mark() { return readMoved_ || files_.WriteInPlace(MarkPath(), SaveUnderWay); }

void Generation::Unmark() {
  // Emptied first, because that reaches the disk at once, while a removal may be delayed by Windows.
  static_cast<void>(files_.WriteInPlace(MarkPath(), {}));
  static_cast<void>(files_.Remove(MarkPath()));
}

bool Generation::Holds(std::wstring_view path, std::string_view bytes) const {
  return files_.Read(path).Bytes == bytes;
}

bool Generation::WillReplace(std::wstring_view path) const {
  return std::any_of(changes_.begin(), changes_.end(),
                     [=](const Change& change) { return change.Path == path && change.Old.Bytes; });
}

std::vector<std::wstring_view> Generation::All() const {
  std::vector<std::wstring_view> all = environment_.Files.Lists();
  all.push_back(environment_.Files.Set);
  return all;
}

std::vector<std::wstring> Generation::AsFound() const {
  std::vector<std::wstring> found;
  for (const std::wstring_view path : All()) found.emplace_back(path);
  if (!markUnread_ && !readKept_ && !readMoved_) return found;
  for (const std::wstring_view path : All()) found.push_back(KeptPath(path));
  found.push_back(MarkPath());
  return found;
}

std::wstring Generation::KeptPath(std::wstring_view path) const {
  return Folder().append(path.substr(environment_.DataFolder.size()));
}

}  // namespace vantor::list
