#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

/// The path of a process's program; "" if it can't be determined, for example for protected processes.
[[nodiscard]] std::wstring ImageName(DWORD processId);

/// Whether another process in this session runs this process's program file, and whether the given one does.
[[nodiscard]] bool CopyRuns();
[[nodiscard]] bool IsCopy(DWORD processId);

}  // namespace vantor::win32
