#pragma once

#include <windows.h>
// Needs the one before it.
#include <shlobj.h>

#include <sstream>
#include <string>
#include <vector>

#include "driver/Folder.h"

namespace vantor::desktop {

/// Sees what the program starts, by the recorder program standing in its place.
class Recorder {
 public:
  /// Puts the recorder into the folder as recorder.exe, and behind the documents whose names end in .vantortest.
  explicit Recorder(const Folder& folder) : folder_(folder) {
    folder_.CopyProgram(ProgramName(), "recorder.exe");
    folder_.Write(RecordName);
    SetEnvironmentVariableW(L"VANTOR_RECORD", Wide(folder_.Path(RecordName)).c_str());
    SetKey(ClassesRoot(), Classes + L".vantortest", L"", L"VantorTest");
    SetKey(ClassesRoot(), Classes + LR"(VantorTest\shell\open\command)", L"", Wide(Quoted() + R"( document "%1")"));
  }
  ~Recorder() {
    RegDeleteTreeW(ClassesRoot(), (Classes + L".vantortest").c_str());
    RegDeleteTreeW(ClassesRoot(), (Classes + L"VantorTest").c_str());
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// On a desktop of the test's own the one that may stand in for the system's programs.
  static const char* ProgramName() { return OwnDesktop() && On64Bit() ? "recorder64.exe" : "recorder.exe"; }
  /// Only on a desktop of the test's own: puts it in the place of Explorer and rundll32, and behind web and mail
  /// addresses.
  void ReplaceSystem() const {
    for (const std::wstring& program : SystemPrograms()) {
      std::filesystem::remove(program);
      std::filesystem::copy_file(Wide(folder_.Path("recorder.exe")), program);
    }
    for (const std::wstring scheme : {L"http", L"https", L"mailto"}) {
      RegDeleteTreeW(HKEY_CLASSES_ROOT, (scheme + L"\\shell").c_str());  // how Wine opens them by itself
      SetKey(ClassesRoot(), Classes + scheme, L"URL Protocol", L"");
      SetKey(ClassesRoot(), Classes + scheme + L"\\shell\\open\\command", L"",
             Wide(Quoted() + ' ' + Narrow(scheme) + " \"%1\""));
    }
    for (const std::wstring program : {L"rundll32.exe", L"regedit.exe"})
      SetKey(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", program, L"native");
    SetKey(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", L"tapi32", L"");  // nobody is called
  }
  /// The command lines recorded so far.
  [[nodiscard]] std::vector<std::string> Lines() const {
    std::istringstream records(folder_.Read(RecordName));
    std::vector<std::string> lines;
    for (std::string line; std::getline(records, line);) lines.push_back(line);
    return lines;
  }

 private:
  static constexpr char RecordName[] = "record.txt";
  static inline const std::wstring Classes = L"Software\\Classes\\";

  /// Where document kinds are told: for the user alone, but Wine looks at the machine's only.
  static HKEY ClassesRoot() { return UnderWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }
  static void SetKey(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& value) {
    if (RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, value.c_str(),
                        static_cast<DWORD>(value.size() + 1) * sizeof(wchar_t)) != ERROR_SUCCESS) {
      throw std::runtime_error("the registry can't be written");
    }
  }
  static std::vector<std::wstring> SystemPrograms() {
    wchar_t path[MAX_PATH];
    const std::wstring windows(path, GetWindowsDirectoryW(path, MAX_PATH));
    return {windows + L"\\explorer.exe", windows + (On64Bit() ? L"\\Sysnative" : L"\\system32") + L"\\rundll32.exe"};
  }
  [[nodiscard]] std::string Quoted() const { return '"' + folder_.Path("recorder.exe") + '"'; }

  const Folder& folder_;
};

inline std::string SystemFolder(int id) {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path);
  return Narrow(path);
}

/// A text in the registry; "(none)" when there is none.
inline std::string RegistryText(HKEY root, const wchar_t* key, const wchar_t* name) {
  wchar_t text[1024] = L"";
  DWORD bytes = sizeof text;
  return RegGetValueW(root, key, name, RRF_RT_REG_SZ, nullptr, text, &bytes) == ERROR_SUCCESS ? Narrow(text) : "(none)";
}
/// Where Windows looks for what starts with it, and the program's own entry.
constexpr wchar_t RunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t RunValue[] = L"OrbelsLauncher";

}  // namespace vantor::desktop
