#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

/// The address of a function of shell32.dll. That library is by far the largest that the program uses, and is not
/// needed for a start, so it is loaded at the first call instead of with the program. Throws std::runtime_error if it
/// can't be loaded or lacks the function.
FARPROC FindShellFunction(const char* name);

/// The same, typed: ShellFunction<decltype(ShellExecuteW)>("ShellExecuteW").
template <class Function>
Function* ShellFunction(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(FindShellFunction(name)));
}

/// Whether the shell can handle a target of this length. Wine's shell overflows its stack beyond some 1,400 characters.
[[nodiscard]] bool FitsShell(std::wstring_view target);

/// An object to keep during a call of the shell with this file or folder: the true system folder if the shell, as a
/// part of this program, would be redirected. The path itself must not be changed: it is passed to the program that
/// opens a document and to the service that asks for administrator rights, which are both 64-bit.
[[nodiscard]] std::optional<TrueSystemFolder> FolderForShell(std::wstring_view path);

/// Opens a file or starts a program as the shell does, asking for administrator rights if it needs them. Returns false
/// if that fails, without showing anything. The shell's extensions are COM objects, so the thread must have entered
/// COM.
bool OpenByShell(const std::wstring& file, const std::wstring& arguments);

}  // namespace vantor::win32
