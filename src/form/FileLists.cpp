#include "form/FileLists.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "form/Form.h"
#include "text/Ascii.h"
#include "text/Path.h"

namespace vantor::form {

namespace {

/// The drive of a path as the list shows it, with a lower-case letter.
std::wstring DriveOf(std::wstring_view path) {
  std::wstring drive(text::DriveName(path));
  if (!drive.empty()) drive[0] = text::ToLower(drive[0]);
  return drive;
}

/// The folder without a trailing backslash, except for a drive's root, and with an upper-case drive letter.
std::wstring TidyFolder(std::wstring_view path) {
  std::wstring folder(path);
  if (folder.size() == 2 && folder[1] == L':') folder += L'\\';
  if (folder.size() > 3 && folder.back() == L'\\') folder.pop_back();
  if (folder.size() > 1 && folder[1] == L':') folder[0] = text::ToUpper(folder[0]);
  return folder;
}

std::wstring Join(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (!path.empty() && path.back() != L'\\') path += L'\\';
  return path.append(name);
}

}  // namespace

void DriveList::Refresh() {
  const std::wstring chosen = Drive();
  std::vector<std::wstring> entries;
  int index = -1;
  for (const service::Drive& drive : files_.Drives()) {
    std::wstring entry = DriveOf(std::wstring{drive.Letter, L':'});
    if (entry == chosen) index = static_cast<int>(entries.size());
    if (!drive.Label.empty()) entry += L" [" + drive.Label + L"]";
    entries.push_back(std::move(entry));
  }
  if (index == -1 && !chosen.empty()) {
    index = static_cast<int>(entries.size());
    entries.push_back(chosen);
  }
  ReplaceEntries(std::move(entries));
  listIndex_ = index;
  NotifyWindow(Property::ListIndex);
}

std::wstring DriveList::Drive() const { return std::wstring(text::DriveName(Text())); }

void DriveList::SetDrive(std::wstring_view path) {
  const std::wstring drive = DriveOf(path);
  if (drive.empty()) return;
  const auto isDrive = [&](const std::wstring& entry) { return entry == drive || entry.starts_with(drive + L" ["); };
  auto found = std::find_if(list_.begin(), list_.end(), isDrive);
  if (found == list_.end()) {
    found = list_.insert(list_.end(), drive);
    NotifyWindow(Property::List);
  }
  SetListIndex(static_cast<int>(found - list_.begin()));
}

bool DriveList::Ready(int index) const { return files_.DriveReady(TidyFolder(text::DriveName(List(index)))); }

bool FolderList::SetPath(std::wstring_view path) {
  std::wstring folder = TidyFolder(path);
  if (folder == path_) return true;
  if (!files_.DriveReady(folder) || !files_.FolderExists(folder)) return false;
  path_ = std::move(folder);
  Fill(OwnerForm().Visible());
  Change();
  return true;
}

void FolderList::Refresh() { Fill(true); }

std::wstring FolderList::PathOf(int index) const {
  if (index > currentIndex_) return Join(path_, List(index));
  std::wstring path = List(0);
  for (int i = 1; i <= index; ++i) path = Join(path, List(i));
  return path;
}

int FolderList::LevelOf(int index) const { return std::min(index, currentIndex_ + 1); }

void FolderList::EntryChosen() {
  if (!SetPath(PathOf(ListIndex()))) Unreachable();
}

void FolderList::Fill(bool read) {
  const std::size_t drive = text::DriveName(path_).size();
  const std::size_t rootEnd = drive == 2 ? 3 : drive;
  std::vector<std::wstring> entries{path_.substr(0, rootEnd)};
  for (std::size_t start = path_.find_first_not_of(L'\\', rootEnd); start < path_.size();) {
    const std::size_t end = std::min(path_.find(L'\\', start), path_.size());
    entries.push_back(path_.substr(start, end - start));
    start = end + 1;
  }
  currentIndex_ = static_cast<int>(entries.size()) - 1;
  if (read) {
    for (std::wstring& name : files_.Folders(path_)) entries.push_back(std::move(name));
  }
  ReplaceEntries(std::move(entries));
  listIndex_ = currentIndex_;
  NotifyWindow(Property::ListIndex);
}

void FileList::SetPath(std::wstring_view path) {
  if (path_ == path) return;
  path_ = path;
  Refresh();
}

void FileList::SetPattern(std::wstring_view pattern) {
  if (pattern_ == pattern) return;
  pattern_ = pattern;
  Refresh();
}

void FileList::Refresh() {
  ReplaceEntries(path_.empty() ? std::vector<std::wstring>() : files_.Files(path_, pattern_));
}

}  // namespace vantor::form
