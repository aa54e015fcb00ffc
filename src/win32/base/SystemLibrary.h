#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

/// The folder of the system's own programs and libraries, and Windows' own, without a trailing backslash; "" when the
/// system does not tell.
[[nodiscard]] std::wstring SystemFolder();
[[nodiscard]] std::wstring WindowsFolder();

/// Loads one of Windows' own libraries, and what that one stands on, from Windows' folder alone, whatever lies beside
/// the program or in the current folder. `name` is the bare file name. Returns null when there is no such library.
HMODULE LoadSystemLibrary(const wchar_t* name);

/// A function of a library, such as one that only newer systems have. Null when the library lacks it, or is null
/// itself.
template <class Function>
Function FindFunction(HMODULE library, const char* name) {
  return library != nullptr ? reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)))
                            : nullptr;
}

}  // namespace vantor::win32
