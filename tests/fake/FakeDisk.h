#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantor::fake {

/// Drives, folders and files in memory. Paths are compared without regard to the case of A to Z. Initially there is
/// only a fixed drive C:.
class FakeDisk {
 public:
  struct DriveState {
    int Type = 2;
    std::wstring Label;
    bool Ready = true;  // otherwise nothing on it is visible
    bool WriteProtected = false;
  };
  struct Entry {
    std::wstring Path;  // in its original case
    bool IsFolder = false;
    bool Writable = true;
    int HeldFor = 0;  // for so many milliseconds of pauses it can't be read
    std::string Bytes;

    [[nodiscard]] std::wstring Name() const { return Path.substr(Path.rfind(L'\\') + 1); }
  };
  enum class Fault {
    None,
    Gone,  // nothing more reaches the disk: the medium is removed, or the program ends
    Full,
  };

  std::map<wchar_t, DriveState> Drives{{L'C', {}}};

  /// Creates a file and all folders of its path.
  Entry& AddFile(std::wstring_view path, std::string_view bytes = "") {
    AddFolder(Parent(path));
    Entry& entry = entries_[Key(path)];
    if (entry.Path.empty()) entry.Path = Trim(path);
    entry.Bytes = bytes;
    return entry;
  }
  void AddFolder(std::wstring_view path) {
    if (!IsRoot(path) && !Find(path)) AddFile(path).IsFolder = true;
  }
  void Remove(std::wstring_view path) { entries_.erase(Key(path)); }
  /// A file or folder; throws std::out_of_range if it does not exist.
  [[nodiscard]] Entry& At(std::wstring_view path) { return entries_.at(Key(path)); }
  /// Adds copies of a folder's files to another, which is named with its backslash.
  void CopyFiles(const std::wstring& from, const std::wstring& to) {
    for (const Entry* file : In(from)) AddFile(to + file->Name(), file->Bytes);
  }

  /// Lets writing fail after so many bytes, where each call counts as one more. A full disk holds this many in all.
  void Break(Fault fault, std::size_t bytes) {
    fault_ = fault;
    left_ = bytes;
    Used = 0;
  }
  void Mend() {
    fault_ = Fault::None;
    Drives[L'C'].Ready = Drives[L'E'].Ready = true;
  }
  std::size_t Used = 0;               // by the calls since then
  std::vector<std::wstring> Written;  // the paths, in order

  // Questions of the services.

  [[nodiscard]] DriveState DriveOf(std::wstring_view path) const {
    const auto found = Drives.find(path.substr(0, 2).ends_with(L':') ? Key(path)[0] : L'\0');
    return found == Drives.end() ? DriveState{-1, L"", false} : found->second;
  }
  /// The file or folder, if its drive is ready.
  [[nodiscard]] const Entry* Find(std::wstring_view path) const {
    const auto found = entries_.find(Key(path));
    return !DriveOf(path).Ready || found == entries_.end() ? nullptr : &found->second;
  }
  [[nodiscard]] bool HasFile(std::wstring_view path) const { return Find(path) && !Find(path)->IsFolder; }
  [[nodiscard]] bool HasFolder(std::wstring_view path) const {
    return IsRoot(path) ? DriveOf(path).Ready : Find(path) && Find(path)->IsFolder;
  }
  /// The direct contents of a folder, sorted without regard to case.
  [[nodiscard]] std::vector<const Entry*> In(std::wstring_view folder) const {
    std::vector<const Entry*> result;
    for (const auto& [key, entry] : entries_)
      if (Key(Parent(entry.Path)) == Key(folder) && Find(entry.Path)) result.push_back(&entry);
    return result;
  }
  /// A file that does not fit is cut off if it is written in place; otherwise the old one stays.
  bool Write(std::wstring_view path, std::string_view bytes, bool inPlace) {
    const Entry* old = Find(path);
    if (!CanWrite(path) || (old && (old->IsFolder || !old->Writable))) return false;
    std::size_t room = fault_ == Fault::None ? bytes.size() : left_;
    if (fault_ == Fault::Full) room -= std::min(room, Size() - (inPlace && old ? old->Bytes.size() : 0));
    const bool fits = bytes.size() <= room;
    if (fits || inPlace) {
      AddFile(path, bytes.substr(0, room));
      Written.emplace_back(path);
    }
    Spend(path, bytes.size());
    return fits;
  }
  [[nodiscard]] bool MayWrite(std::wstring_view path) const {
    return HasFile(path) && Find(path)->Writable && !DriveOf(path).WriteProtected;
  }
  bool Move(std::wstring_view from, std::wstring_view to) {
    if (!MayWrite(from) || !CanWrite(to) || (Find(to) && !MayWrite(to))) return false;
    AddFile(to, At(from).Bytes);
    Written.emplace_back(to);
    Remove(from);
    return true;
  }
  bool RemoveFile(std::wstring_view path) {
    if (!HasFile(path)) return true;
    if (!CanWrite(path) || !Find(path)->Writable) return false;
    Remove(path);
    return true;
  }
  bool MakeFolder(std::wstring_view path) {
    if (HasFolder(path)) return true;
    if (HasFile(path) || !CanWrite(path)) return false;
    AddFolder(path);
    return true;
  }
  /// The size of all files in bytes.
  [[nodiscard]] std::size_t Size() const {
    std::size_t size = 0;
    for (const auto& [key, entry] : entries_) size += entry.Bytes.size();
    return size;
  }

 private:
  static std::wstring Trim(std::wstring_view path) {
    while (!path.empty() && path.back() == L'\\') path.remove_suffix(1);
    return std::wstring(path);
  }
  static std::wstring Key(std::wstring_view path) {
    std::wstring key = Trim(path);
    for (wchar_t& c : key)
      if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - L'a' + L'A');
    return key;
  }
  static bool IsRoot(std::wstring_view path) { return Trim(path).find(L'\\') == std::wstring::npos; }
  static std::wstring Parent(std::wstring_view path) {
    const std::wstring trimmed = Trim(path);
    return trimmed.substr(0, trimmed.find_last_of(L'\\'));
  }
  /// Whether a call may write: only to an existing folder on a writable drive.
  bool CanWrite(std::wstring_view path) {
    Spend(path, 1);
    return !DriveOf(path).WriteProtected && HasFolder(Parent(path));
  }
  void Spend(std::wstring_view path, std::size_t bytes) {
    Used += bytes;
    if (fault_ != Fault::Gone) return;
    if (bytes > left_) Drives.at(Key(path)[0]).Ready = false;
    left_ -= std::min(left_, bytes);
  }

  std::map<std::wstring, Entry> entries_;  // by the Key of the path
  Fault fault_ = Fault::None;
  std::size_t left_ = 0;
};

}  // namespace vantor::fake
