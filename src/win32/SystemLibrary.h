#pragma once

#include <windows.h>

namespace vantor::win32 {

/// Loads one of Windows' own libraries, and what that one stands on, from Windows' folder alone, whatever lies beside
/// the program or in the current folder. `name` is the bare file name. Returns null when there is no such library.
HMODULE LoadSystemLibrary(const wchar_t* name);

}  // namespace vantor::win32
