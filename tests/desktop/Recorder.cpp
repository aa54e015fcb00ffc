#include "desktop/Recorder.h"

#include <windows.h>

#include <filesystem>
#include <sstream>

#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

constexpr char RecordName[] = "record.txt";
constexpr wchar_t Classes[] = L"Software\\Classes\\";

/// Where document kinds are told: for the user alone, but Wine looks at the machine's only.
HKEY ClassesRoot() { return UnderWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

void SetKey(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& value) {
  if (RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, value.c_str(),
                      static_cast<DWORD>(value.size() + 1) * sizeof(wchar_t)) != ERROR_SUCCESS) {
    throw std::runtime_error("the registry can't be written");
  }
}

std::vector<std::wstring> SystemPrograms() {
  wchar_t path[MAX_PATH];
  const std::wstring windows(path, GetWindowsDirectoryW(path, MAX_PATH));
  return {windows + L"\\explorer.exe", windows + L"\\system32\\rundll32.exe"};
}

}  // namespace

Recorder::Recorder(const Folder& folder) : folder_(folder) {
  folder_.CopyProgram("recorder.exe", "recorder.exe");
  folder_.Write(RecordName, "");
  SetEnvironmentVariableW(L"VANTOR_RECORD", Wide(folder_.Path(RecordName)).c_str());
  SetKey(ClassesRoot(), std::wstring(Classes) + L".vantortest", L"", L"VantorTest");
  SetKey(ClassesRoot(), std::wstring(Classes) + LR"(VantorTest\shell\open\command)", L"",
         Wide('"' + folder_.Path("recorder.exe") + R"(" document "%1")"));
}

Recorder::~Recorder() {
  RegDeleteTreeW(ClassesRoot(), (std::wstring(Classes) + L".vantortest").c_str());
  RegDeleteTreeW(ClassesRoot(), (std::wstring(Classes) + L"VantorTest").c_str());
}

void Recorder::RemoveSystemPrograms() {
  for (const std::wstring& program : SystemPrograms()) std::filesystem::remove(program);
  SetKey(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", L"rundll32.exe", L"native");
  SetKey(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", L"tapi32", L"");
  RegDeleteTreeW(HKEY_CLASSES_ROOT, L"mailto");
}

void Recorder::ReplaceSystem() {
  RemoveSystemPrograms();
  for (const std::wstring& program : SystemPrograms()) {
    std::filesystem::copy_file(Wide(folder_.Path("recorder.exe")), program);
  }
  for (const std::wstring scheme : {L"http", L"https", L"mailto"}) {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, (scheme + L"\\shell").c_str());  // how Wine opens them by itself
    SetKey(ClassesRoot(), Classes + scheme, L"URL Protocol", L"");
    SetKey(ClassesRoot(), Classes + scheme + L"\\shell\\open\\command", L"",
           Wide('"' + folder_.Path("recorder.exe") + "\" " + Narrow(scheme) + " \"%1\""));
  }
}

std::vector<std::string> Recorder::Lines() const {
  std::istringstream records(folder_.Read(RecordName));
  std::vector<std::string> lines;
  for (std::string line; std::getline(records, line);) lines.push_back(line.substr(0, line.find('\t')));
  return lines;
}

std::string Recorder::Next() {
  if (!Eventually([this] { return Lines().size() > seen_; })) return "(nothing started)";
  return Lines()[seen_++];
}

}  // namespace vantor::desktop
