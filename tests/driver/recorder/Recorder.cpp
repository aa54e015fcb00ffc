// Stands in for the programs that Vantor starts: appends its command line in UTF-8 to the file named by VANTOR_RECORD.

#include "driver/Desktop.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
  wchar_t file[MAX_PATH] = L"";
  GetEnvironmentVariableW(L"VANTOR_RECORD", file, MAX_PATH);
  HANDLE record = CreateFileW(file, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  const std::string line = vantor::desktop::Narrow(GetCommandLineW()) + '\n';
  DWORD written = 0;
  const bool whole = WriteFile(record, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) != 0;
  CloseHandle(record);
  return whole && written == line.size() ? 0 : 1;
}
