#include "win32/base/ShellFunction.h"

#include <shellapi.h>

#include <stdexcept>

#include "win32/base/SystemLibrary.h"

namespace vantor::win32 {

namespace {

bool UnderWine() {
  static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return wine;
}

/// The class by which Wine's shell should open this file or address; "" if it may determine that itself. Unless it is
/// told, it replaces variables in any name and opens another file; Windows replaces them only on request.
std::wstring ClassToKeepName(const std::wstring& target) {
  constexpr DWORD LongestClass = 256;
  if (!UnderWine() || target.find(L'%') == std::wstring::npos) return {};
  const std::size_t colon = target.find(L':');
  if (colon != std::wstring::npos && colon > 1) return target.substr(0, colon);
  const std::size_t dot = target.find_last_of(L".\\/");
  if (dot == std::wstring::npos || target[dot] != L'.') return {};
  wchar_t name[LongestClass] = L"exefile";  // programs have no entry there
  DWORD size = sizeof name;
  RegGetValueW(HKEY_CLASSES_ROOT, target.c_str() + dot, nullptr, RRF_RT_REG_SZ, nullptr, name, &size);
  return name;
}

}  // namespace

FARPROC FindShellFunction(const char* name) {
  // Never unloaded, because it does not handle that well.
  const HMODULE library = LoadSystemLibrary(L"shell32.dll");
  const FARPROC found = library != nullptr ? GetProcAddress(library, name) : nullptr;
  if (found == nullptr) throw std::runtime_error("a function of the shell's library is missing");
  return found;
}

bool FitsShell(std::wstring_view target) {
  constexpr std::size_t LongestUnderWine = 1024;
  return !UnderWine() || target.size() <= LongestUnderWine;
}

std::optional<TrueSystemFolder> FolderForShell(std::wstring_view path) {
  if (!IsRedirected(path)) return std::nullopt;
  // Libraries that the shell itself loads only now: for document types, for the zone that a file comes from, and for
  // starting programs.
  return std::optional<TrueSystemFolder>(std::in_place,
                                         {L"shell32.dll", L"propsys.dll", L"urlmon.dll", L"apphelp.dll"});
}

bool OpenByShell(const std::wstring& file, const std::wstring& arguments) {
  if (!FitsShell(file) || !FitsShell(arguments)) return false;
  SHELLEXECUTEINFOW what{sizeof what};
  what.fMask = SEE_MASK_FLAG_NO_UI;
  what.lpFile = file.c_str();
  what.lpParameters = arguments.empty() ? nullptr : arguments.c_str();
  what.nShow = SW_SHOWNORMAL;
  const std::wstring kind = ClassToKeepName(file);
  if (!kind.empty()) what.fMask |= SEE_MASK_CLASSNAME;
  what.lpClass = kind.c_str();
  auto* const open = ShellFunction<decltype(ShellExecuteExW)>("ShellExecuteExW");
  const auto folder = FolderForShell(file);
  return open(&what) != FALSE;
}

}  // namespace vantor::win32
