#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

/// The address of a function of shell32.dll. That library is by far the largest that the program calls, and a start
/// calls nothing of it, so it is loaded at the first question instead of with the program. Throws std::runtime_error
/// when it can't be loaded or lacks the function.
FARPROC FindShellFunction(const char* name);

/// The same, typed: ShellFunction<decltype(ShellExecuteW)>("ShellExecuteW").
template <class Function>
Function* ShellFunction(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(FindShellFunction(name)));
}

/// Whether the shell bears a target of this length. Wine's runs over its own stack beyond some 1,400 characters.
[[nodiscard]] bool FitsShell(std::wstring_view target);

/// What to hold round a call of the shell about this file or folder: where the shell, a part of this program, would be
/// led away from it, the true system folder. The path must stay as it is: the program behind a document gets it, and
/// the service that asks for the administrator's rights, and both are 64-bit ones.
[[nodiscard]] std::optional<TrueSystemFolder> FolderForShell(std::wstring_view path);

/// Opens a file or starts a program as the shell does, asking for the administrator's rights where it needs them. False
/// when that fails; nothing is shown then. The shell's extensions are COM objects, so the thread must have entered COM.
bool OpenByShell(const std::wstring& file, const std::wstring& arguments);

}  // namespace vantor::win32
