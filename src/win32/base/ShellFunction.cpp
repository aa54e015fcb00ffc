#include "win32/base/ShellFunction.h"

#include <shellapi.h>

#include <stdexcept>

#include "win32/base/SystemLibrary.h"

namespace vantor::win32 {

FARPROC FindShellFunction(const char* name) {
  // Never unloaded: it does not bear that well.
  const HMODULE library = LoadSystemLibrary(L"shell32.dll");
  const FARPROC found = library != nullptr ? GetProcAddress(library, name) : nullptr;
  if (found == nullptr) throw std::runtime_error("a function of the shell's library is missing");
  return found;
}

bool FitsShell(std::wstring_view target) {
  constexpr std::size_t LongestUnderWine = 1024;
  static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
  return !wine || target.size() <= LongestUnderWine;
}

bool OpenByShell(const std::wstring& file, const std::wstring& arguments) {
  if (!FitsShell(file) || !FitsShell(arguments)) return false;
  SHELLEXECUTEINFOW what = {};
  what.cbSize = sizeof what;
  what.fMask = SEE_MASK_FLAG_NO_UI;
  what.lpFile = file.c_str();
  what.lpParameters = arguments.empty() ? nullptr : arguments.c_str();
  what.nShow = SW_SHOWNORMAL;
  return ShellFunction<decltype(ShellExecuteExW)>("ShellExecuteExW")(&what) != FALSE;
}

}  // namespace vantor::win32
