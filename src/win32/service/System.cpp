#include "win32/service/System.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

#include "text/Numbers.h"
#include "text/Path.h"
#include "win32/base/ApplicationMark.h"
#include "win32/base/ProcessImage.h"
#include "win32/base/SystemLibrary.h"
#include "win32/base/SystemText.h"

namespace vantor::win32 {

namespace {

/// A number for this program's file: a copy in another folder counts as another program, with its own lists.
std::wstring FileNumber() {
  std::wstring path = ImageName(GetCurrentProcessId());
  CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
  return text::Decimal(static_cast<long long>(std::hash<std::wstring>{}(path)));
}

std::wstring UserName() {
  wchar_t name[257] = L"";  // 256 is the maximum length of a user name
  DWORD length = 257;
  if (!GetUserNameW(name, &length)) return {};
  std::wstring plain(name);
  std::replace(plain.begin(), plain.end(), L'\\', L'/');
  return plain;
}

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

bool IsShown(HWND window) {
  RECT place = {};
  return IsWindowVisible(window) && (IsIconic(window) || (GetWindowRect(window, &place) && !IsRectEmpty(&place)));
}

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

/// The visible window of the application window's process that is closest in front of it in the z-order, otherwise the
/// closest one behind it.
HWND ShownWindowNear(HWND application) {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  const DWORD process = ProcessOf(application);
  const auto ours = [process](HWND window) { return ProcessOf(window) == process && IsShown(window); };
  const auto at = std::find(windows.begin(), windows.end(), application);
  const auto before = std::find_if(std::make_reverse_iterator(at), windows.rend(), ours);
  if (before != windows.rend()) return *before;
  const auto behind = std::find_if(at, windows.end(), ours);
  return behind == windows.end() ? nullptr : *behind;
}

HWND BarOf(HWND application) {
  const HWND before = GetWindow(application, GW_HWNDPREV);
  // An input method has windows of its own next to the application window.
  if (before != nullptr && ProcessOf(before) == ProcessOf(application) && IsShown(before)) return before;
  return ShownWindowNear(application);
}

/// The application window of a copy of this program; null if there is none. Other programs may have a window with this
/// class and title, too.
HWND FindApplication(std::wstring_view title) {
  const std::wstring wanted(title);
  HWND window = nullptr;
  do {
    window = FindWindowExW(nullptr, window, ApplicationClass, wanted.c_str());
  } while (window != nullptr && (GetPropW(window, ApplicationMark) == nullptr || !IsCopy(ProcessOf(window))));
  return window;
}

/// Whether a bar was brought to the front, or there is no application window with the title, or it has no bar yet.
enum class Activation { NoWindow, NoBar, Done };

/// Restores the bar in front of the application window with this title and brings it to the front.
Activation ActivateBar(std::wstring_view title) {
  const HWND application = FindApplication(title);
  if (application == nullptr) return Activation::NoWindow;
  const HWND bar = BarOf(application);
  if (bar == nullptr) return Activation::NoBar;
  AllowSetForegroundWindow(ProcessOf(application));
  if (IsIconic(bar)) OpenIcon(bar);
  // While a dialog is open the bar is disabled, and the user has to see the dialog.
  const HWND front = IsWindowEnabled(bar) ? bar : GetLastActivePopup(bar);
  SetForegroundWindow(front);
  // Otherwise Wine leaves it behind other windows.
  SetWindowPos(front, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
  return Activation::Done;
}

}  // namespace

System::~System() {
  if (owned_) ReleaseMutex(mutex_.Get());
}

bool System::PreviousInstance() {
  if (owned_) return false;
  if (!mutex_) {
    const std::wstring name = L"Local\\" + program_ + L" " + FileNumber() + L" " + UserName();
    mutex_.Reset(CreateMutexW(nullptr, FALSE, name.c_str()));
    // The mutex of a copy with administrator rights can only be opened for waiting.
    if (!mutex_) mutex_.Reset(OpenMutexW(SYNCHRONIZE, FALSE, name.c_str()));
    if (!mutex_) return true;  // the name is taken, though not necessarily by a copy
  }
  const DWORD waited = WaitForSingleObject(mutex_.Get(), 0);
  owned_ = waited == WAIT_OBJECT_0 || waited == WAIT_ABANDONED;
  return !owned_;
}

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
    if (waited || !PreviousInstance() || !CopyRuns()) return activation == Activation::NoBar && waited;
    Sleep(Pause);
  }
}

}  // namespace vantor::win32
