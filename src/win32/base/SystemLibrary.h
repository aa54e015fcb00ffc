#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

/// The folder of the system's programs and libraries, and that of Windows, without a trailing backslash; "" if the
/// system does not report it.
[[nodiscard]] std::wstring SystemFolder();
[[nodiscard]] std::wstring WindowsFolder();

/// The flag by which libraries are loaded from the system's folder only (LOAD_LIBRARY_SEARCH_SYSTEM32).
inline constexpr DWORD SystemFolderOnly = 0x800;

/// Loads one of Windows' own libraries, and those it depends on, from Windows' folder only, whatever is next to the
/// program or in the current folder. `name` is the file name without a folder. Returns null if there is no such
/// library.
HMODULE LoadSystemLibrary(const wchar_t* name);

/// A function of a library, for example one that only newer systems have. Null if the library lacks it or is null.
template <class Function>
Function FindFunction(HMODULE library, const char* name) {
  return library != nullptr ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)))
                            : nullptr;
}

}  // namespace vantor::win32
