#include "win32/service/FileSystem.h"

#include <algorithm>

#include "text/Path.h"
#include "win32/base/AccessList.h"
#include "win32/base/Handle.h"
#include "win32/base/LongPath.h"
#include "win32/base/SystemText.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

/// "C:\" of "C:", "c:\x"; "\\server\share\" of a path on a share; the path itself if it has no drive.
std::wstring RootOf(std::wstring_view path) {
  const std::wstring_view drive = text::DriveName(path);
  return drive.empty() ? std::wstring(path) : std::wstring(drive) + L'\\';
}

std::optional<int> PlainDriveType(const std::wstring& root) {
  switch (GetDriveTypeW(root.c_str())) {
    case DRIVE_UNKNOWN:
      return 0;
    case DRIVE_REMOVABLE:
      return 1;
    case DRIVE_FIXED:
      return 2;
    case DRIVE_REMOTE:
      return 3;
    case DRIVE_CDROM:
      return 4;
    case DRIVE_RAMDISK:
      return 5;
    default:
      return std::nullopt;
  }
}

std::wstring VolumeLabel(const std::wstring& root) {
  wchar_t label[MAX_PATH + 1] = L"";
  if (!GetVolumeInformationW(root.c_str(), label, MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0)) return {};
  return label;
}

enum class EntryKind { Folders, Files };

/// Whether a name has the pattern's ending. No other patterns are used, and PathMatchSpec would load a library at the
/// start.
bool Matches(std::wstring_view name, std::wstring_view pattern) {
  if (pattern == L"*.*") return true;
  const std::wstring_view ending = pattern.substr(1);
  return name.size() >= ending.size() && SameName(name.substr(name.size() - ending.size()), ending);
}

bool Wanted(const WIN32_FIND_DATAW& entry, EntryKind kind, std::wstring_view pattern) {
  // As in Explorer by default: files with only the system attribute, such as the fonts folder, are shown.
  if ((entry.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0) return false;
  const bool folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (folder != (kind == EntryKind::Folders)) return false;
  const std::wstring_view name = entry.cFileName;
  if (folder && (name == L"." || name == L"..")) return false;
  // The system's own search also takes names whose short form fits: "a.exe1" is A12345~1.EXE there.
  return Matches(name, pattern);
}

bool ComesBefore(const std::wstring& left, const std::wstring& right) {
  const int order = CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE | SORT_STRINGSORT, left.data(),
                                   static_cast<int>(left.size()), right.data(), static_cast<int>(right.size()));
  // Names that differ only in case have a fixed order too.
  return order == CSTR_EQUAL ? left < right : order == CSTR_LESS_THAN;
}

FindHandle FindFirst(const std::wstring& search, WIN32_FIND_DATAW& entry) {
  const TrueSystemFolder folder;
  return FindHandle(FindFirstFileExW(search.c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                     FIND_FIRST_EX_LARGE_FETCH));
}

/// The names in a folder whose long form matches the pattern.
std::vector<std::wstring> ListFolder(std::wstring_view folder, EntryKind kind, std::wstring_view pattern) {
  std::vector<std::wstring> names;
  if (folder.empty()) return names;
  std::wstring search(folder);
  if (search.back() != L'\\' && search.back() != L'/') search += L'\\';
  search += L'*';

  WIN32_FIND_DATAW entry;
  const FindHandle found = FindFirst(CallPath(search), entry);
  if (!found) return names;
  do {
    if (Wanted(entry, kind, pattern)) names.emplace_back(entry.cFileName);
  } while (FindNextFileW(found.Get(), &entry));
  std::sort(names.begin(), names.end(), ComesBefore);
  return names;
}

}  // namespace

bool FileSystem::Available() {
  try {
    static_cast<void>(Make());
    return true;
  } catch (const ComError&) {
    return false;
  }
}

std::optional<int> FileSystem::DriveType(std::wstring_view path) {
  const std::wstring root = RootOf(path);
  try {
    const auto drive = GetDrive(root);
    if (root == asked_.Root && asked_.Type) return asked_.Type;
    int type = 0;
    Check(drive->get_DriveType(&type));
    if (many_ > 0) asked_.Type = type;
    return type;
  } catch (const ComError& error) {
    if (!error.Lacking()) return std::nullopt;
    return PlainDriveType(root);
  }
}

bool FileSystem::FileExists(std::wstring_view path) {
  return Exists(path, &scripting::IFileSystem::FileExists, IsFile);
}

bool FileSystem::FolderExists(std::wstring_view path) {
  return Exists(path, &scripting::IFileSystem::FolderExists, IsFolder);
}

std::wstring FileSystem::ExtensionName(std::wstring_view path) {
  try {
    ComText extension;
    Check(Make()->GetExtensionName(MakeComText(path).Get(), extension.Put()));
    std::wstring found = ToText(extension.Get());
    // Some implementations search for the dot in the whole path.
    return found.find_first_of(L"\\/") == std::wstring_view::npos ? found : std::wstring();
  } catch (const ComError&) {
    const std::wstring_view name = path.substr(path.find_last_of(L"\\/:") + 1);
    const std::size_t dot = name.rfind(L'.');
    return dot == std::wstring_view::npos ? std::wstring() : std::wstring(name.substr(dot + 1));
  }
}

std::vector<service::Drive> FileSystem::Drives() {
  const service::ManyFileCalls many(*this);
  std::vector<service::Drive> drives;
  const DWORD there = GetLogicalDrives();
  for (unsigned i = 0; i < 26; ++i) {
    if ((there >> i & 1U) == 0) continue;
    service::Drive drive;
    drive.Letter = static_cast<wchar_t>(L'A' + i);
    const std::wstring root = std::wstring(1, drive.Letter) + L":\\";
    drive.Type = DriveType(root).value_or(0);
    // A network drive may take half a minute to answer, and the letters A and B make a floppy drive turn.
    constexpr int Network = 3;
    if (drive.Type != Network && i >= 2) drive.Label = VolumeLabel(root);
    drives.push_back(std::move(drive));
  }
  return drives;
}

bool FileSystem::DriveReady(std::wstring_view path) {
  try {
    const auto drive = GetDrive(path);
    VARIANT_BOOL ready = VARIANT_FALSE;
    Check(drive->get_IsReady(&ready));
    return ready != VARIANT_FALSE;
  } catch (const ComError& error) {
    return error.Lacking() && IsFolder(RootOf(path));
  }
}

std::vector<std::wstring> FileSystem::Folders(std::wstring_view path) {
  return ListFolder(path, EntryKind::Folders, L"*.*");
}

std::vector<std::wstring> FileSystem::Files(std::wstring_view path, std::wstring_view pattern) {
  return ListFolder(path, EntryKind::Files, pattern);
}

bool FileSystem::OthersMayWrite(std::wstring_view path) { return AccessListLetsOthersWrite(path); }

void FileSystem::EndMany() {
  if (--many_ > 0) return;
  held_.Reset();
  missing_ = false;
  asked_ = {};
}

FileSystem::Object FileSystem::Make() {
  if (held_) return held_.Share();
  if (missing_) throw ComError(true);
  apartment_.Enter();
  CLSID id;
  Object object;
  HRESULT made = CLSIDFromProgID(L"Scripting.FileSystemObject", &id);
  if (SUCCEEDED(made)) {
    made = CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, scripting::FileSystemId, object.PutVoid());
  }
  if (many_ > 0) {
    missing_ = FAILED(made);
    if (object) held_ = object.Share();
  }
  CheckMade(made);
  return object;
}

ComPointer<scripting::IDrive> FileSystem::GetDrive(std::wstring_view path) {
  std::wstring root = RootOf(path);
  if (asked_.Drive && root == asked_.Root) return asked_.Drive.Share();
  const Object object = Make();
  ComText name;
  ComPointer<scripting::IDrive> drive;
  Check(object->GetDriveName(MakeComText(path).Get(), name.Put()));
  Check(object->GetDrive(name.Get(), drive.Put()));
  if (many_ > 0) asked_ = {std::move(root), drive.Share(), std::nullopt};
  return drive;
}

bool FileSystem::Exists(std::wstring_view path, Test test, bool (*plainTest)(std::wstring_view)) {
  // The object claims that nothing with a long path exists.
  if (path.size() >= MAX_PATH) return plainTest(path);
  try {
    const Object object = Make();
    const TrueSystemFolder folder;
    VARIANT_BOOL exists = VARIANT_FALSE;
    Check((object.Get()->*test)(MakeComText(path).Get(), &exists));
    return exists != VARIANT_FALSE;
  } catch (const ComError& error) {
    return error.Lacking() && plainTest(path);
  }
}

}  // namespace vantor::win32
