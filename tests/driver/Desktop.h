#pragma once

// The basis of the desktop tests. Texts and paths are those of Windows, in UTF-16; the bytes of files are std::string.

#include <windows.h>
// Needs the one before it.
#include <shlobj.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace vantor::desktop {

/// A text in UTF-8.
inline std::string Narrow(const std::wstring& text) {
  const std::u8string bytes = std::filesystem::path(text).u8string();
  return {bytes.begin(), bytes.end()};
}

/// The bytes of a text in UTF-16, as in files of Windows.
inline std::string Utf16(const std::wstring& text) {
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

inline bool UnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

/// Whether the Windows installation belongs to the test, so that its system files may be replaced. Set by tools/wine.
inline bool OwnDesktop() { return GetEnvironmentVariableW(L"VANTOR_TEST_DESKTOP", nullptr, 0) > 0; }

/// Whether Windows is a 64-bit one.
inline bool On64Bit() {
  BOOL guest = FALSE;
  return IsWow64Process(GetCurrentProcess(), &guest) && guest;
}

/// The path of this program, of a file next to it, and of a folder of the shell (by its CSIDL).
inline std::wstring OwnPath() {
  wchar_t own[MAX_PATH];
  return {own, GetModuleFileNameW(nullptr, own, MAX_PATH)};
}
inline std::wstring Beside(const std::wstring& name) { return OwnPath().substr(0, OwnPath().rfind(L'\\') + 1) + name; }
inline std::wstring SystemFolder(int id) {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path);
  return path;
}

inline bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }
/// The bytes of a file; "(none)" if it does not exist.
inline std::string BytesOf(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  if (!file) return "(none)";
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Where Windows looks for what starts with it, and the program's own entry.
constexpr wchar_t RunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t RunValue[] = L"OrbelsLauncher";

/// Reads and writes a text in the registry; "(none)" if it does not exist.
inline std::wstring RegistryText(HKEY root, const std::wstring& key, const std::wstring& name) {
  wchar_t text[1024] = L"";
  DWORD bytes = sizeof text;
  const LSTATUS read = RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text, &bytes);
  return read == ERROR_SUCCESS ? text : L"(none)";
}
inline void SetRegistryText(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  const auto bytes = static_cast<DWORD>(text.size() + 1) * static_cast<DWORD>(sizeof(wchar_t));
  if (RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, text.c_str(), bytes) != ERROR_SUCCESS)
    throw std::runtime_error("the registry can't be written");
}

/// Runs a check with a scripting or management object (true) and then, if the registry belongs to the test, without it,
/// as after an administrator has removed its class (false).
template <class Action>
void WithAndWithout(const std::wstring& className, Action action) {
  action(true);
  if (!OwnDesktop()) return;
  const std::wstring key = L"Software\\Classes\\" + className + L"\\CLSID";
  const std::wstring id = RegistryText(HKEY_LOCAL_MACHINE, key, L"");
  SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", L"{00000000-1111-2222-3333-444444444444}");
  action(false);
  SetRegistryText(HKEY_LOCAL_MACHINE, key, L"", id);
}

/// Checks a condition until it is true. Returns false if that does not happen in time.
template <class Condition>
bool Eventually(Condition condition) {
  constexpr ULONGLONG Patience = 20000;  // milliseconds
  const ULONGLONG limit = GetTickCount64() + Patience;
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
inline PROCESS_INFORMATION Start(std::wstring commandLine, const std::wstring& folder = {}) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      folder.empty() ? nullptr : folder.c_str(), &startup, &process)) {
    throw std::runtime_error("does not start: " + Narrow(commandLine));
  }
  CloseHandle(process.hThread);
  return process;
}

/// Runs a program and returns its exit code.
inline DWORD Run(const std::wstring& commandLine) {
  HANDLE process = Start(commandLine).hProcess;
  const bool ended = WaitForSingleObject(process, 60000) == WAIT_OBJECT_0;
  DWORD code = 0;
  GetExitCodeProcess(process, &code);
  CloseHandle(process);
  if (!ended) throw std::runtime_error("does not end: " + Narrow(commandLine));
  return code;
}

}  // namespace vantor::desktop
