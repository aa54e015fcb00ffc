#include "win32/base/ProcessImage.h"

#include <tlhelp32.h>

#include "win32/base/Handle.h"
#include "win32/base/SystemText.h"

namespace vantor::win32 {

namespace {

bool InThisSession(DWORD processId) {
  DWORD theirs = 0;
  DWORD ours = 0;
  return ProcessIdToSessionId(processId, &theirs) && ProcessIdToSessionId(GetCurrentProcessId(), &ours) &&
         theirs == ours;
}

}  // namespace

std::wstring ImageName(DWORD processId) {
  const KernelHandle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
  if (!process) return {};
  return SystemText([&](wchar_t* buffer, DWORD size) {
    DWORD length = size;
    if (QueryFullProcessImageNameW(process.Get(), 0, buffer, &length)) return length;
    constexpr DWORD LongestPath = 32768;
    return GetLastError() == ERROR_INSUFFICIENT_BUFFER && size < LongestPath ? LongestPath : 0;
  });
}

bool IsCopy(DWORD processId) {
  if (processId == GetCurrentProcessId()) return false;
  const std::wstring theirs = ImageName(processId);
  return !theirs.empty() && SameName(theirs, ImageName(GetCurrentProcessId()));
}

bool CopyRuns() {
  const FileHandle snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  const std::wstring own = ImageName(GetCurrentProcessId());
  const std::wstring_view name = std::wstring_view(own).substr(own.rfind(L'\\') + 1);
  PROCESSENTRY32W process{sizeof process};
  for (BOOL more = Process32FirstW(snapshot.Get(), &process); more; more = Process32NextW(snapshot.Get(), &process)) {
    // The list contains the name; the path requires another call.
    const DWORD id = process.th32ProcessID;
    if (SameName(process.szExeFile, name) && InThisSession(id) && IsCopy(id)) return true;
  }
  return false;
}

}  // namespace vantor::win32
