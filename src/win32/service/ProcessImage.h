#pragma once

#include <windows.h>

#include <string>

namespace vantor::win32 {

/// The path of a process's program; "" when the system does not tell, as of protected processes.
[[nodiscard]] std::wstring ImageName(DWORD processId);

/// Whether another process of this session runs this process's own program file, and whether this one does.
[[nodiscard]] bool CopyRuns();
[[nodiscard]] bool IsCopy(DWORD processId);

}  // namespace vantor::win32
