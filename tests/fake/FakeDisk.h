#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantor::fake {

/// Drives, folders and files in memory, behind FakeFileSystem and FakeDataFiles. Paths are compared without
/// regard to the case of A to Z. Drive C: is there from the start, fixed; other drives are added.
class FakeDisk {
 public:
  struct DriveState {
    int Type = 2;
    std::wstring Label;
    bool Ready = true;       // otherwise nothing on it can be seen
    bool Examinable = true;  // otherwise asking for its type fails
    bool WriteProtected = false;
  };
  struct Entry {
    std::wstring Path;  // in the letter case it was made with
    bool IsFolder = false;
    bool Hidden = false;
    bool Readable = true;
    bool Writable = true;
    std::string Bytes;
  };

  FakeDisk() { AddDrive(L'C', 2); }

  DriveState& AddDrive(wchar_t letter, int type, std::wstring_view label = L"") {
    return drives_[letter] = {type, std::wstring(label)};
  }
  DriveState& Drive(wchar_t letter) { return drives_.at(letter); }
  void RemoveDrive(wchar_t letter) { drives_.erase(letter); }

  /// Makes a file with all the folders on its way.
  Entry& AddFile(std::wstring_view path, std::string_view bytes = "") {
    AddFolder(Parent(path));
    Entry& entry = entries_[Key(path)];
    if (entry.Path.empty()) entry.Path = Trim(path);
    entry.Bytes = bytes;
    return entry;
  }
  void AddFolder(std::wstring_view path) {
    if (IsRoot(path) || Find(path)) return;
    AddFolder(Parent(path));
    Entry& entry = entries_[Key(path)];
    entry.Path = Trim(path);
    entry.IsFolder = true;
  }
  void Remove(std::wstring_view path) {
    const std::wstring below = Key(path) + L"\\";
    std::erase_if(entries_, [&](const auto& e) { return e.first == Key(path) || e.first.starts_with(below); });
  }

  /// The bytes of a file; throws std::out_of_range when there is none.
  [[nodiscard]] std::string& Bytes(std::wstring_view path) { return entries_.at(Key(path)).Bytes; }
  [[nodiscard]] bool HasFile(std::wstring_view path) const {
    const Entry* entry = Find(path);
    return entry && !entry->IsFolder;
  }

  /// So many writes succeed yet, folders made included; then all fail.
  void FailWritesAfter(int count) { writesLeft_ = count; }
  void FailNoWrites() { writesLeft_.reset(); }
  /// The paths written, in order.
  std::vector<std::wstring> Written;

  // What the fake services ask.

  [[nodiscard]] const std::map<wchar_t, DriveState>& Drives() const { return drives_; }
  [[nodiscard]] const DriveState* DriveOf(std::wstring_view path) const {
    if (path.size() < 2 || path[1] != L':') return nullptr;
    const auto found = drives_.find(Key(path)[0]);
    return found == drives_.end() ? nullptr : &found->second;
  }
  /// The file or folder, if its drive is ready.
  [[nodiscard]] const Entry* Find(std::wstring_view path) const {
    const DriveState* drive = DriveOf(path);
    if (drive && !drive->Ready) return nullptr;
    const auto found = entries_.find(Key(path));
    return found == entries_.end() ? nullptr : &found->second;
  }
  [[nodiscard]] bool FolderExists(std::wstring_view path) const {
    const DriveState* drive = DriveOf(path);
    if (IsRoot(path)) return drive && drive->Ready;
    const Entry* entry = Find(path);
    return entry && entry->IsFolder;
  }
  /// What stands directly in a folder, sorted without regard to letter case.
  [[nodiscard]] std::vector<const Entry*> In(std::wstring_view folder) const {
    std::vector<const Entry*> result;
    for (const auto& [key, entry] : entries_)
      if (Key(Parent(entry.Path)) == Key(folder) && Find(entry.Path)) result.push_back(&entry);
    return result;
  }
  [[nodiscard]] bool Write(std::wstring_view path, std::string_view bytes) {
    const Entry* old = Find(path);
    if (!CanWrite(path) || (old && (old->IsFolder || !old->Writable))) return false;
    AddFile(path, bytes);
    Written.emplace_back(path);
    return true;
  }
  [[nodiscard]] bool RemoveFile(std::wstring_view path) {
    if (!HasFile(path)) return true;
    if (!CanWrite(path) || !Find(path)->Writable) return false;
    Remove(path);
    return true;
  }
  [[nodiscard]] bool MakeFolder(std::wstring_view path) {
    if (FolderExists(path)) return true;
    if (HasFile(path) || !CanWrite(path)) return false;
    AddFolder(path);
    Written.emplace_back(path);
    return true;
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
  /// Counts a write, and says whether it may happen: into a folder that exists, on a drive that takes it.
  bool CanWrite(std::wstring_view path) {
    if (writesLeft_ && (*writesLeft_)-- <= 0) {
      writesLeft_ = 0;
      return false;
    }
    const DriveState* drive = DriveOf(path);
    return (!drive || (drive->Ready && !drive->WriteProtected)) && FolderExists(Parent(path));
  }

  std::map<wchar_t, DriveState> drives_;
  std::map<std::wstring, Entry> entries_;  // by Key of the path
  std::optional<int> writesLeft_;
};

}  // namespace vantor::fake
