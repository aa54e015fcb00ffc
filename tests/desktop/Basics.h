#pragma once

// What the desktop tests stand on. They hold texts in UTF-8, so that a failed comparison can be read.

#include <windows.h>

#include <stdexcept>
#include <string>

namespace vantor::desktop {

inline std::wstring Wide(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  const auto length = static_cast<int>(text.size());
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length)));
  return wide;
}

inline std::string Narrow(const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                                   static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

/// Whether this runs under Wine, in an installation that is the test's alone: its system files may be replaced.
inline bool UnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

inline bool Exists(const std::string& path) {
  return GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
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
    const auto& awaited = (expected);                                      \
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
