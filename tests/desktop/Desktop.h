#pragma once

// What the desktop tests stand on. They hold texts in UTF-8, so that a failed comparison can be read.

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace vantor::desktop {

inline std::wstring Wide(const std::string& text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end())).wstring();
}
inline std::string Narrow(const std::wstring& text) {
  const std::u8string bytes = std::filesystem::path(text).u8string();
  return {bytes.begin(), bytes.end()};
}

/// The bytes of a text in a file of Windows.
inline std::string Utf16(const std::string& text) {
  const std::wstring wide = Wide(text);
  return {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t)};
}

/// Whether this runs under Wine, in an installation that is the test's alone: its system files may be replaced.
inline bool UnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

/// Whether Windows is a 64-bit one, on which the program and its tests are guests.
inline bool On64Bit() {
  BOOL guest = FALSE;
  return IsWow64Process(GetCurrentProcess(), &guest) && guest;
}

inline bool Exists(const std::string& path) {
  return GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}
/// The bytes of a file; "(none)" when there is none.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(std::filesystem::path(Wide(path)), std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Asks until the condition holds. False when it does not within the time.
template <class Condition>
bool Eventually(Condition condition, DWORD milliseconds = 20000) {
  const ULONGLONG limit = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() >= limit) return false;
    // A window of the test's own has to answer meanwhile.
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
    Sleep(5);
  }
  return true;
}

/// Waits for what the rest of a test stands on; ends the test when it does not come.
template <class Condition>
void Await(const std::string& what, Condition condition) {
  if (!Eventually(condition)) throw std::runtime_error("waited in vain for " + what);
}

/// Starts a program in a folder, its caller's own by default.
inline PROCESS_INFORMATION Start(const std::string& commandLine, const std::string& folder = {}) {
  std::wstring line = Wide(commandLine);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      folder.empty() ? nullptr : Wide(folder).c_str(), &startup, &process)) {
    throw std::runtime_error("does not start: " + commandLine);
  }
  CloseHandle(process.hThread);
  return process;
}

/// Runs a program to its end. Returns its exit code.
inline DWORD Run(const std::string& commandLine) {
  HANDLE process = Start(commandLine).hProcess;
  const bool ended = WaitForSingleObject(process, 60000) == WAIT_OBJECT_0;
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  CloseHandle(process);
  if (!ended) throw std::runtime_error("does not end: " + commandLine);
  return code;
}

}  // namespace vantor::desktop

/// The value becomes the expected one within the limit. A failure shows what it was instead.
#define CHECK_BECOMES(value, expected)                                     \
  do {                                                                     \
    const auto awaited = (expected);                                       \
    (void)vantor::desktop::Eventually([&] { return (value) == awaited; }); \
    CHECK((value) == awaited);                                             \
  } while (false)

/// Ends a test that can't be shown here, and says so.
#define SKIP_UNLESS(condition, why)   \
  do {                                \
    if (!(condition)) {               \
      MESSAGE("skipped: needs " why); \
      return;                         \
    }                                 \
  } while (false)

/// Windows of other programs, looked at from outside. Only what is shown is found.
namespace vantor::desktop::window {

/// The title of a window or the content of a control; "" from a program that does not answer.
inline std::string Text(HWND window) {
  constexpr UINT Patience = 2000;  // milliseconds
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, Patience, &length);
  std::wstring text(length + 1, L'\0');
  length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                      Patience, &length);
  text.resize(length);
  return Narrow(text);
}

inline std::string ClassName(HWND window) {
  wchar_t name[64];
  return Narrow(std::wstring(name, static_cast<std::size_t>(GetClassNameW(window, name, 64))));
}

inline DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

inline BOOL CALLBACK Collect(HWND window, LPARAM list) {
  if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

/// The top-level windows of a process, minimised ones too.
inline std::vector<HWND> OfProcess(DWORD process) {
  std::vector<HWND> windows;
  EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [process](HWND window) { return ProcessOf(window) != process; });
  return windows;
}

/// The controls of a window, in its own order.
inline std::vector<HWND> Controls(HWND window) {
  std::vector<HWND> controls;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

inline RECT Bounds(HWND window) {
  RECT bounds = {};
  GetWindowRect(window, &bounds);
  return bounds;
}

inline POINT Middle(HWND window) {
  const RECT bounds = Bounds(window);
  return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

/// The controls of a class, from left to right and from top to bottom.
inline std::vector<HWND> OfClass(HWND window, const std::string& className) {
  auto controls = Controls(window);
  std::erase_if(controls, [&](HWND control) { return _stricmp(ClassName(control).c_str(), className.c_str()) != 0; });
  std::sort(controls.begin(), controls.end(), [](HWND a, HWND b) {
    const RECT left = Bounds(a);
    const RECT right = Bounds(b);
    return std::tie(left.left, left.top) < std::tie(right.left, right.top);
  });
  return controls;
}

/// The button, option, check box or frame with a text; null when there is none.
inline HWND Button(HWND window, const std::string& text) {
  const auto buttons = OfClass(window, "Button");
  const auto found = std::find_if(buttons.begin(), buttons.end(), [&](HWND one) { return Text(one) == text; });
  return found == buttons.end() ? nullptr : *found;
}

/// The window that has the focus in this one's program; null when none has.
inline HWND FocusOf(HWND window) {
  GUITHREADINFO thread = {};
  thread.cbSize = sizeof thread;
  return GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread) ? thread.hwndFocus : nullptr;
}

/// The control, or the window itself, that has the input; null when another window is in the foreground.
inline HWND Focus(HWND window) {
  if (!window || GetForegroundWindow() != window) return nullptr;
  HWND const focus = FocusOf(window);
  return focus == window || IsChild(window, focus) ? focus : nullptr;
}

/// The colour that is on the screen.
inline COLORREF ColorAt(LONG x, LONG y) {
  HDC const screen = GetDC(nullptr);
  const COLORREF color = GetPixel(screen, x, y);
  ReleaseDC(nullptr, screen);
  return color;
}

inline bool IsEnabled(HWND window) { return IsWindowEnabled(window) != FALSE; }
inline bool IsMinimised(HWND window) { return IsIconic(window) != FALSE; }
inline bool IsTopMost(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

/// Whether the first window stands somewhere above the second.
inline bool IsAbove(HWND upper, HWND lower) {
  for (HWND window = upper; window; window = GetWindow(window, GW_HWNDNEXT)) {
    if (window == lower) return true;
  }
  return false;
}

}  // namespace vantor::desktop::window

/// Keys and mouse as a person uses them: everything goes to the window that Windows gives it to.
namespace vantor::desktop::input {

inline void Key(WORD key, WORD scan, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki = {key, scan, flags, 0, 0};
  SendInput(1, &input, sizeof input);
}

inline void Press(WORD key) {
  const auto scan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  Key(key, scan, 0);
  Key(key, scan, KEYEVENTF_KEYUP);
}

/// Types a text by the keys of the keyboard layout; characters that need more than one key come as an input method
/// sends them: under Wine, Shift may be let go before the key, when the state of the X server's keys comes in between.
inline void Type(const std::string& text) {
  for (const wchar_t character : Wide(text)) {
    const SHORT key = VkKeyScanW(character);
    if (key >> 8 != 0) {
      Key(0, character, KEYEVENTF_UNICODE);
      Key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
      continue;
    }
    Press(static_cast<WORD>(key));
  }
}

/// Moves the mouse, and moves or presses its left button there.
inline void Mouse(POINT at, DWORD flags = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  // Whole pixels, each aimed at its middle.
  input.mi.dx = (at.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
  input.mi.dy = (at.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof input);
}
inline void Hold(POINT at) {
  Mouse(at);
  Mouse(at, MOUSEEVENTF_LEFTDOWN);
}
inline void LetGo(POINT at) { Mouse(at, MOUSEEVENTF_LEFTUP); }

inline void Click(POINT at) {
  Hold(at);
  LetGo(at);
}
inline void Click(HWND window) { Click(window::Middle(window)); }
inline void DoubleClick(POINT at) {
  Click(at);
  Click(at);
}

}  // namespace vantor::desktop::input
