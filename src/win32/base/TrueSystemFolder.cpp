#include "win32/base/TrueSystemFolder.h"

#include <windows.h>

#include <utility>

#include "win32/base/LongPath.h"
#include "win32/base/SystemLibrary.h"
#include "win32/base/SystemText.h"

namespace vantor::win32 {

namespace {

bool BeginsWith(std::wstring_view path, std::wstring_view folder) {
  return SameName(path.substr(0, folder.size()), folder);
}

}  // namespace

bool On64BitWindows() {
  static const bool guest = [] {
    BOOL answer = FALSE;
    return IsWow64Process(GetCurrentProcess(), &answer) && answer;
  }();
  return guest;
}

TrueSystemFolder::TrueSystemFolder(std::initializer_list<const wchar_t*> libraries) {
  if (!On64BitWindows()) return;
  for (const wchar_t* library : libraries) LoadSystemLibrary(library);
  switched_ = Wow64DisableWow64FsRedirection(&before_) != FALSE;
}

TrueSystemFolder::~TrueSystemFolder() {
  if (switched_) Wow64RevertWow64FsRedirection(before_);
}

bool IsRedirected(std::wstring_view path) {
  if (!On64BitWindows()) return false;
  const std::wstring full = FullPath(path) + L'\\';
  const bool led = BeginsWith(full, SystemFolder() + L'\\') || BeginsWith(full, WindowsFolder() + L"\\regedit.exe\\");
  return led && (IsFile(path) || IsFolder(path));
}

std::wstring KnownPath(std::wstring path) {
  const std::wstring alias = WindowsFolder() + L"\\Sysnative\\";
  if (On64BitWindows() && BeginsWith(path, alias)) path.replace(0, alias.size() - 1, SystemFolder());
  return path;
}

std::wstring KnownTarget(std::wstring path) {
  path = KnownPath(std::move(path));
  const std::wstring guests = EnvironmentVariable(L"ProgramFiles(x86)") + L'\\';
  if (!On64BitWindows() || !BeginsWith(path, guests) || IsFile(path) || IsFolder(path)) return path;
  return EnvironmentVariable(L"ProgramW6432") + L'\\' + path.substr(guests.size());
}

}  // namespace vantor::win32
