#include "win32/service/DataFiles.h"

#include <windows.h>

#include <utility>

#include "win32/base/Handle.h"
#include "win32/base/LongPath.h"

namespace vantor::win32 {

namespace {

// Far larger than any data file of the program.
constexpr LONGLONG LargestFile = 256LL * 1024 * 1024;

bool WriteAll(HANDLE file, std::string_view bytes) {
  DWORD written = 0;
  return WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) && written == bytes.size();
}

/// Creates the new file with the attributes of the one that it is to replace.
FileHandle MakeFile(const std::wstring& path, DWORD oldAttributes) {
  const DWORD attributes = oldAttributes == INVALID_FILE_ATTRIBUTES
                               ? FILE_ATTRIBUTE_NORMAL
                               : oldAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  return FileHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, attributes, nullptr));
}

/// Retries an operation that fails while another program holds the file, such as a virus scanner that checks new files.
/// Returns the error code.
template <class Attempt>
DWORD Patiently(Attempt attempt) {
  constexpr int Attempts = 10;
  constexpr DWORD Pause = 20;  // milliseconds
  for (int count = 1;; ++count) {
    if (attempt()) return ERROR_SUCCESS;
    const DWORD error = GetLastError();
    const bool mayPass = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
    if (!mayPass || count == Attempts) return error;
    Sleep(Pause);
  }
}

DWORD MoveOver(const std::wstring& from, const std::wstring& to) {
  return Patiently([&] {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
  });
}

bool IsMissing(DWORD error) { return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND; }

/// Whether a write is refused at once because waiting would not help.
bool IsRefused(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY));
}

/// For a folder in which files may be changed but not created or deleted. The new bytes overwrite the old ones and the
/// rest is cut off last, so that on a full disk most of the old or the new contents remains.
bool WriteOver(const std::wstring& path, std::string_view bytes) {
  const FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file.Get(), bytes) && SetEndOfFile(file.Get()) && FlushFileBuffers(file.Get());
}

}  // namespace

service::FileRead DataFiles::Read(std::wstring_view path) {
  const FileHandle file(CreateFileW(CallPath(path).c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!file) return {std::nullopt, IsMissing(GetLastError())};
  LARGE_INTEGER size = {};
  if (!GetFileSizeEx(file.Get(), &size) || size.QuadPart > LargestFile) return {};
  std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
  DWORD read = 0;
  if (!ReadFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) return {};
  bytes.resize(read);
  return {std::move(bytes)};
}

void DataFiles::Pause(int milliseconds) { Sleep(static_cast<DWORD>(milliseconds)); }

bool DataFiles::Write(std::wstring_view path, std::string_view bytes) {
  if (bytes.size() > LargestFile) return false;
  const std::wstring place = CallPath(path);
  const DWORD attributes = GetFileAttributesW(place.c_str());
  if (IsRefused(attributes)) return false;  // replacing the file would ignore it

  const std::wstring beside = CallPath(std::wstring(path) + service::UnfinishedEnding);
  FileHandle file = MakeFile(beside, attributes);
  if (!file) return GetLastError() == ERROR_ACCESS_DENIED && WriteOver(place, bytes);
  const bool written = WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
  file.Reset();
  const DWORD error = written ? MoveOver(beside, place) : ERROR_WRITE_FAULT;
  if (error == ERROR_SUCCESS) return true;
  const bool writtenInPlace = error == ERROR_ACCESS_DENIED && WriteOver(place, bytes);
  DeleteFileW(beside.c_str());
  return writtenInPlace;
}

bool DataFiles::WriteInPlace(std::wstring_view path, std::string_view bytes) {
  if (bytes.size() > LargestFile) return false;
  const std::wstring place = CallPath(path);
  const DWORD attributes = GetFileAttributesW(place.c_str());
  if (IsRefused(attributes)) return false;
  FileHandle file;
  const DWORD error = Patiently([&] {
    file = MakeFile(place, attributes);
    return static_cast<bool>(file);
  });
  return error == ERROR_SUCCESS && WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
}

bool DataFiles::Move(std::wstring_view from, std::wstring_view to) {
  // A hidden, compressed or encrypted file, say, would not be so any more.
  constexpr DWORD Usual = FILE_ATTRIBUTE_NORMAL | FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  const std::wstring place = CallPath(from);
  return (GetFileAttributesW(place.c_str()) & ~Usual) == 0 && MoveOver(place, CallPath(to)) == ERROR_SUCCESS;
}

bool DataFiles::CanWrite(std::wstring_view path) {
  const std::wstring place = CallPath(path);
  if (IsRefused(GetFileAttributesW(place.c_str()))) return false;
  const FileHandle file(CreateFileW(place.c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  return file || GetLastError() == ERROR_SHARING_VIOLATION;
}

bool DataFiles::Remove(std::wstring_view path) {
  return DeleteFileW(CallPath(path).c_str()) || IsMissing(GetLastError());
}

bool DataFiles::MakeFolder(std::wstring_view path) {
  return CreateDirectoryW(CallPath(path).c_str(), nullptr) || IsFolder(path);
}

std::optional<std::vector<std::wstring>> DataFiles::FolderEntries(std::wstring_view path) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW entry;
  const FindHandle found(FindFirstFileExW(CallPath(std::wstring(path) + L"\\*").c_str(), FindExInfoBasic, &entry,
                                          FindExSearchNameMatch, nullptr, 0));
  if (!found) return IsMissing(GetLastError()) ? std::optional(std::move(names)) : std::nullopt;
  do {
    const std::wstring_view name = entry.cFileName;
    if (name != L"." && name != L"..") names.emplace_back(name);
  } while (FindNextFileW(found.Get(), &entry));
  if (GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
  return names;
}

}  // namespace vantor::win32
