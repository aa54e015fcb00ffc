#include <windows.h>

#include <cstdlib>
#include <exception>

#include "start/Program.h"
#include "win32/base/SystemLibrary.h"
#include "win32/service/WindowsServices.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

namespace {

/// Makes sure that no file next to the program or in the current folder is mistaken for a part of Windows, and that
/// Windows does not ask for a disk when a drive is empty. Programs started from here inherit the current folder, where
/// the shell also searches for names without a folder: a file named "www.site.com" there would be run instead of
/// opening the site.
void Harden() {
  HeapSetInformation(nullptr, HeapEnableTerminationOnCorruption, nullptr, 0);
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  SetCurrentDirectoryW(SystemFolder().c_str());

  // Windows 7 has this call only after an update. SetDllDirectory does not need it, but programs started from here
  // would inherit its effect.
  using SetDirectories = BOOL(WINAPI*)(DWORD);
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
// The library's own handler would write the type of the uncaught exception to a console that does not exist, and add
// 50 KB of demangler for that.
void __gnu_cxx::__verbose_terminate_handler() { std::abort(); }
#endif

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  vantor::win32::Harden();
  try {
    vantor::win32::RunProgram();
    return 0;
  } catch (...) {
    // Every handler has its own trap; what reaches this point could not be reported for lack of memory.
    return 1;
  }
}
