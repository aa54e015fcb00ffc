#include <windows.h>

#include <cstdlib>
#include <exception>

#include "start/Program.h"
#include "win32/base/SystemLibrary.h"
#include "win32/service/WindowsServices.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

namespace {

/// Nothing that lies beside the program or in the current folder is to be taken for a part of Windows, and no
/// drive without a disk makes Windows ask for one. What this program starts inherits the current folder, which the
/// shell too looks into for names without a folder: a file of the name "www.site.com" there would be run in a site's
/// place.
void Harden() {
  HeapSetInformation(nullptr, HeapEnableTerminationOnCorruption, nullptr, 0);
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  SetCurrentDirectoryW(SystemFolder().c_str());

  // Windows 7 has this call by an update only. SetDllDirectory would do without, but programs started from here
  // would inherit it.
  using SetDirectories = BOOL(WINAPI*)(DWORD);
  constexpr DWORD SystemFolderOnly = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
  const auto setDirectories =
      FindFunction<SetDirectories>(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories");
  if (setDirectories != nullptr) setDirectories(SystemFolderOnly);
}

void RunProgram() {
  Desktop desktop;
  WindowsServices services(state::ApplicationTitle,
                           [&desktop](std::wstring_view title) { desktop.SetApplicationTitle(title); });
  start::Program program(desktop, services.All());
  desktop.OnError = [&program](const std::exception_ptr&) { program.Messages.ReportBug(L"Desktop"); };
  program.Main();
  desktop.OnError = nullptr;
}

}  // namespace

}  // namespace vantor::win32

#ifdef __GLIBCXX__
// The library's own handler writes the name of the uncaught exception's type to a console that is not there, and
// brings 50 KB of demangler for it.
void __gnu_cxx::__verbose_terminate_handler() { std::abort(); }
#endif

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  vantor::win32::Harden();
  try {
    vantor::win32::RunProgram();
    return 0;
  } catch (...) {
    // Every routine has its own trap; what reaches this point found no memory to report with.
    return 1;
  }
}
