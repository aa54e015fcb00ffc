#include "win32/service/Programs.h"

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <utility>

#include "win32/base/Handle.h"
#include "win32/base/LongPath.h"
#include "win32/base/ProgramCommand.h"
#include "win32/base/ShellFunction.h"
#include "win32/base/SystemLibrary.h"
#include "win32/base/TrueSystemFolder.h"
#include "win32/service/Language.h"

namespace vantor::win32 {

namespace {

constexpr DWORD ElevationRequired = 740;           // ERROR_ELEVATION_REQUIRED, which not all headers have
constexpr std::size_t LongestCommandLine = 32766;  // CreateProcess's own limit

/// Starts exactly this program. Returns the error code.
DWORD Start(const std::wstring& program, std::wstring commandLine) {
  STARTUPINFOW startup{sizeof startup};
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started = {};
  // Not by a path with "Sysnative": the program would take that for its own folder, which 64-bit programs can't see.
  // CreateProcess uses this library to check whether the program has known problems.
  const TrueSystemFolder folder({L"apphelp.dll"});
  // This program's error mode, without message boxes of Windows, should not be inherited.
  if (!CreateProcessW(CallPath(program).c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_DEFAULT_ERROR_MODE,
                      nullptr, nullptr, &startup, &started)) {
    return GetLastError();
  }
  const KernelHandle process(started.hProcess);
  const KernelHandle thread(started.hThread);
  AllowSetForegroundWindow(started.dwProcessId);
  return ERROR_SUCCESS;
}

}  // namespace

bool Programs::StartCommandLine(std::wstring_view commandLine) {
  if (commandLine.empty() || commandLine.size() > LongestCommandLine) return false;
  // The full path is passed, because a bare name would be searched for next to this program and in the current folder
  // first.
  const ProgramCommand parts = ParseProgramCommand(commandLine);
  if (parts.Path.empty()) return false;
  std::wstring text(commandLine);
  const bool blankInName = parts.Program == text && text.find(L' ') != std::wstring::npos;
  if (blankInName) text = L'"' + text + L'"';
  const DWORD error = Start(parts.Path, std::move(text));
  if (error != ElevationRequired) return error == ERROR_SUCCESS;
  // Only the shell can start a program with administrator rights.
  apartment_.Enter();
  return OpenByShell(parts.Path, parts.Arguments);
}

int Programs::ShellOpen(std::wstring_view file) {
  if (!FitsShell(file)) return ERROR_FILE_NOT_FOUND;
  apartment_.Enter();
  // The program that opens it may be running already and has to come to the front.
  AllowSetForegroundWindow(ASFW_ANY);
  const HINSTANCE result = ShellFunction<decltype(ShellExecuteW)>("ShellExecuteW")(
      nullptr, L"open", std::wstring(file).c_str(), nullptr, nullptr, SW_SHOW);
  return static_cast<int>(reinterpret_cast<INT_PTR>(result));
}

int Programs::RequestMakeCall(std::wstring_view number, std::wstring_view applicationName) {
  constexpr LONG NoRequestRecipient = -2;  // TAPIERR_NOREQUESTRECIPIENT
  constexpr LONG InvalidAddress = -4;      // TAPIERR_INVALDESTADDRESS
  using MakeCall = LONG(WINAPI*)(LPCSTR address, LPCSTR application, LPCSTR calledParty, LPCSTR comment);

  const LibraryHandle telephony(LoadSystemLibrary(L"TAPI32.DLL"));
  if (!telephony) return NoRequestRecipient;
  const auto makeCall = FindFunction<MakeCall>(telephony.Get(), "tapiRequestMakeCall");
  if (makeCall == nullptr) return NoRequestRecipient;
  const Language language;
  const auto address = language.ToCodePage(number);
  if (!address) return InvalidAddress;
  return makeCall(address->c_str(), language.ToCodePage(applicationName).value_or("").c_str(), "", "");
}

}  // namespace vantor::win32
