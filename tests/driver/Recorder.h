#pragma once

#include <windows.h>
// Needs the one before it.
#include <shlobj.h>

#include <sstream>
#include <string>
#include <vector>

#include "driver/Folder.h"

namespace vantor::desktop {

/// The path of a folder of the shell, by its CSIDL.
inline std::string SystemFolder(int id) {
  wchar_t path[MAX_PATH] = L"";
  SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path);
  return Narrow(path);
}

/// Sees what the program starts, by the recorder program standing in its place.
class Recorder {
 public:
  /// Puts the recorder into the folder as recorder.exe, and behind the documents whose names end in .vantortest.
  explicit Recorder(const Folder& folder) : folder_(folder) {
    folder_.CopyProgram(ProgramName(), "recorder.exe");
    folder_.Write(RecordName);
    SetEnvironmentVariableW(L"VANTOR_RECORD", Wide(folder_.Path(RecordName)).c_str());
    SetRegistryText(ClassesRoot(), Classes + L".vantortest", L"", L"VantorTest");
    SetRegistryText(ClassesRoot(), Classes + LR"(VantorTest\shell\open\command)", L"",
                    Wide(Quoted() + R"( open "%1")"));
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
    const std::string windows = SystemFolder(CSIDL_WINDOWS);
    const std::string system = windows + (On64Bit() ? "\\Sysnative" : "\\system32");
    for (const std::string& program : {windows + "\\explorer.exe", system + "\\rundll32.exe"}) {
      std::filesystem::remove(Wide(program));
      std::filesystem::copy_file(Wide(folder_.Path("recorder.exe")), Wide(program));
    }
    for (const std::wstring scheme : {L"http", L"https", L"mailto"}) {
      RegDeleteTreeW(HKEY_CLASSES_ROOT, (scheme + L"\\shell").c_str());  // how Wine opens them by itself
      SetRegistryText(ClassesRoot(), Classes + scheme, L"URL Protocol", L"");
      SetRegistryText(ClassesRoot(), Classes + scheme + L"\\shell\\open\\command", L"",
                      Wide(Quoted() + R"( open "%1")"));
    }
    for (const std::wstring program : {L"rundll32.exe", L"regedit.exe"})
      SetRegistryText(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", program, L"native");
    SetRegistryText(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", L"tapi32", L"");  // nobody is called
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
  [[nodiscard]] std::string Quoted() const { return '"' + folder_.Path("recorder.exe") + '"'; }

  const Folder& folder_;
};

/// Where Windows looks for what starts with it, and the program's own entry.
constexpr wchar_t RunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr wchar_t RunValue[] = L"OrbelsLauncher";

}  // namespace vantor::desktop
