// Stands in for whatever Vantor starts: adds its command line and folder, in UTF-8, to the file that the environment
// variable VANTOR_RECORD names, or else to recorder.txt beside it.

#include <windows.h>

#include <string>

namespace {

std::wstring Variable(const wchar_t* name) {
  wchar_t value[MAX_PATH];
  const DWORD length = GetEnvironmentVariableW(name, value, MAX_PATH);
  return length < MAX_PATH ? std::wstring(value, length) : std::wstring();
}

std::string Utf8(const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                                   static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int) {
  wchar_t path[MAX_PATH];
  std::wstring file = Variable(L"VANTOR_RECORD");
  if (file.empty()) {
    file.assign(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
    file = file.substr(0, file.rfind(L'\\') + 1) + L"recorder.txt";
  }
  const std::wstring folder(path, GetCurrentDirectoryW(MAX_PATH, path));
  const std::string line = Utf8(std::wstring(GetCommandLineW()) + L'\t' + folder + L'\n');

  HANDLE record = CreateFileW(file.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (record == INVALID_HANDLE_VALUE) return 1;
  DWORD written = 0;
  const bool whole = WriteFile(record, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) != 0;
  CloseHandle(record);
  return whole && written == line.size() ? 0 : 1;
}
