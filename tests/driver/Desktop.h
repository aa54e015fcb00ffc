#pragma once

// The basis of the desktop tests. They use texts in UTF-8, so that a failed comparison is readable.

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

/// The bytes of a text in UTF-16, as in files of Windows.
inline std::string Utf16(const std::string& text) {
  const std::wstring wide = Wide(text);
  return {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(wchar_t)};
}

inline bool UnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

/// Whether the Windows installation belongs to the test, so that its system files may be replaced. Set by tools/wine.
inline bool OwnDesktop() { return GetEnvironmentVariableW(L"VANTOR_TEST_DESKTOP", nullptr, 0) > 0; }

/// Whether Windows is a 64-bit one.
inline bool On64Bit() {
  BOOL guest = FALSE;
  return IsWow64Process(GetCurrentProcess(), &guest) && guest;
}

/// The path of this program, and of a file next to it.
inline std::wstring OwnPath() {
  wchar_t own[MAX_PATH];
  return {own, GetModuleFileNameW(nullptr, own, MAX_PATH)};
}
inline std::wstring Beside(const std::wstring& name) { return OwnPath().substr(0, OwnPath().rfind(L'\\') + 1) + name; }

inline bool Exists(const std::string& path) {
  return GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}
/// The bytes of a file; "(none)" if it does not exist.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(std::filesystem::path(Wide(path)), std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Reads and writes a text in the registry; "(none)" if it does not exist.
inline std::string RegistryText(HKEY root, const std::wstring& key, const std::wstring& name) {
  wchar_t text[1024] = L"";
  DWORD bytes = sizeof text;
  const LSTATUS read = RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text, &bytes);
  return read == ERROR_SUCCESS ? Narrow(text) : "(none)";
}
inline void SetRegistryText(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  if (RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, text.c_str(), static_cast<DWORD>(bytes)) !=
      ERROR_SUCCESS)
    throw std::runtime_error("the registry can't be written");
}

/// Checks a condition until it is true. Returns false if that does not happen in time.
template <class Condition>
bool Eventually(Condition condition, DWORD milliseconds = 20000) {
  const ULONGLONG limit = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() >= limit) return false;
    // The test's own windows have to respond meanwhile.
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) DispatchMessageW(&message);
    Sleep(5);
  }
  return true;
}

/// Waits for a condition that the rest of the test depends on, and ends the test if it does not become true.
template <class Condition>
void Await(const std::string& what, Condition condition) {
  if (!Eventually(condition)) throw std::runtime_error("waited in vain for " + what);
}

/// Starts a program in a folder, by default the current one.
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

/// Runs a program and returns its exit code.
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

/// Checks that a value becomes the expected one in time. A failure shows the last value.
#define CHECK_BECOMES(value, expected)                                     \
  do {                                                                     \
    const auto awaited = (expected);                                       \
    (void)vantor::desktop::Eventually([&] { return (value) == awaited; }); \
    CHECK((value) == awaited);                                             \
  } while (false)

/// Ends a test that can't be run here, and reports that.
#define SKIP_UNLESS(condition, why)   \
  do {                                \
    if (!(condition)) {               \
      MESSAGE("skipped: needs " why); \
      return;                         \
    }                                 \
  } while (false)
