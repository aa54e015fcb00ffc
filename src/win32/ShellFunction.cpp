#include "win32/ShellFunction.h"

#include <stdexcept>

#include "win32/SystemLibrary.h"

namespace vantor::win32 {

FARPROC FindShellFunction(const char* name) {
  // Never unloaded: it does not bear that well.
  const HMODULE library = LoadSystemLibrary(L"shell32.dll");
  const FARPROC found = library != nullptr ? GetProcAddress(library, name) : nullptr;
  if (found == nullptr) throw std::runtime_error("a function of the shell's library is missing");
  return found;
}

}  // namespace vantor::win32
