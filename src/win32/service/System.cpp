#include "win32/service/System.h"

#include <windows.h>

#include "text/Path.h"
#include "win32/base/SystemLibrary.h"
#include "win32/base/SystemText.h"
#include "win32/service/ProcessImage.h"

namespace vantor::win32 {

std::wstring System::WindowsDirectory() { return WindowsFolder(); }

std::wstring System::ProgramFolder() {
  std::wstring file = SystemText([](wchar_t* buffer, DWORD size) { return GetModuleFileNameW(nullptr, buffer, size); });
  // If the program was started by a literal path, it is converted to the usual form.
  if (file.starts_with(L"\\\\?\\UNC\\"))
    file.erase(2, 6);
  else
    file.erase(0, file.size() - text::WithoutLiteralMark(file).size());
  const std::size_t end = file.rfind(L'\\');
  const bool root = end == 2 && file[1] == L':';
  return file.substr(0, root ? end + 1 : end);
}

bool System::ActivateInstance(std::wstring_view title) {
  constexpr DWORD TimeLimit = 3000;  // milliseconds: how long a cold start from a slow USB stick takes
  constexpr DWORD Pause = 25;
  const DWORD begin = GetTickCount();
  for (;;) {
    const Activation activation = ActivateBar(title);
    if (activation == Activation::Done) return true;
    const bool waited = GetTickCount() - begin >= TimeLimit;
    // The other copy may be ending instead of starting; then this copy replaces it. It also does so if the name is held
    // by something that is not a copy.
    if (waited || !instance_.OtherRuns() || !CopyRuns()) return activation == Activation::NoBar && waited;
    Sleep(Pause);
  }
}

}  // namespace vantor::win32
