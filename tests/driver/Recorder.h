#pragma once

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
    folder_.CopyProgram(ProgramName(), L"recorder.exe");
    SetEnvironmentVariableW(L"VANTOR_RECORD", folder_.Write(RecordName).c_str());
    SetRegistryText(ClassesRoot(), Classes + L".vantortest", L"", L"VantorTest");
    SetRegistryText(ClassesRoot(), Classes + LR"(VantorTest\shell\open\command)", L"", Quoted() + LR"( open "%1")");
  }
  ~Recorder() {
    RegDeleteTreeW(ClassesRoot(), (Classes + L".vantortest").c_str());
    RegDeleteTreeW(ClassesRoot(), (Classes + L"VantorTest").c_str());
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// On a desktop of the test's own the one that may stand in for the system's programs.
  static std::wstring ProgramName() { return OwnDesktop() && On64Bit() ? L"recorder64.exe" : L"recorder.exe"; }
  /// Only on a desktop of the test's own: puts it in the place of Explorer and rundll32, and behind web and mail
  /// addresses.
  void ReplaceSystem() const {
    const std::filesystem::path windows = SystemFolder(CSIDL_WINDOWS);
    const auto system = windows / (On64Bit() ? L"Sysnative" : L"system32");
    for (const auto& program : {windows / L"explorer.exe", system / L"rundll32.exe"}) {
      std::filesystem::remove(program);
      std::filesystem::copy_file(folder_ / L"recorder.exe", program);
    }
    for (const std::wstring scheme : {L"http", L"https", L"mailto"}) {
      RegDeleteTreeW(HKEY_CLASSES_ROOT, (scheme + L"\\shell").c_str());  // how Wine opens them by itself
      SetRegistryText(ClassesRoot(), Classes + scheme, L"URL Protocol", L"");
      SetRegistryText(ClassesRoot(), Classes + scheme + L"\\shell\\open\\command", L"", Quoted() + LR"( open "%1")");
    }
    for (const std::wstring program : {L"rundll32.exe", L"regedit.exe"})
      SetRegistryText(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", program, L"native");
    SetRegistryText(HKEY_CURRENT_USER, L"Software\\Wine\\DllOverrides", L"tapi32", L"");  // nobody is called
  }
  /// The command lines recorded so far.
  [[nodiscard]] std::vector<std::wstring> Lines() const {
    std::istringstream records(folder_.Read(RecordName));
    std::vector<std::wstring> lines;
    for (std::string line; std::getline(records, line);) lines.push_back(Wide(line));
    return lines;
  }

 private:
  static constexpr wchar_t RecordName[] = L"record.txt";
  static inline const std::wstring Classes = L"Software\\Classes\\";

  /// Where document kinds are told: for the user alone, but Wine looks at the machine's only.
  static HKEY ClassesRoot() { return UnderWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }
  [[nodiscard]] std::wstring Quoted() const { return L'"' + (folder_ / L"recorder.exe") + L'"'; }

  const Folder& folder_;
};

}  // namespace vantor::desktop
