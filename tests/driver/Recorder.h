#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "driver/Folder.h"
#include "text/Utf8.h"

namespace vantor::desktop {

/// Sees what the program starts, by the recorder program standing in its place, on a desktop that is ready for flows.
class Recorder {
 public:
  /// Puts the recorder behind the documents whose names end in .vantortest; on a desktop of the test's own also in the
  /// place of system programs, and behind web and mail addresses.
  Recorder() {
    folder_.CopyProgram(ProgramName(), L"recorder.exe");
    SetEnvironmentVariableW(L"VANTOR_RECORD", folder_.Write(RecordName).c_str());
    SetRegistryText(ClassesRoot(), Classes + L".vantortest", L"", L"VantorTest");
    SetRegistryText(ClassesRoot(), Classes + LR"(VantorTest\shell\open\command)", L"", Quoted() + LR"( open "%1")");
    if (OwnDesktop()) ReplaceSystem();
    if (!UnderWine()) return;
    // Keeps the window manager of the X display away, which would take a drag for one of its own mouse.
    SetRegistryText(HKEY_CURRENT_USER, WineKey, L"Managed", L"N");
    Run(L"cmd /c wmic logicaldisk get size >nul");  // the first answer of Wine's management service takes up to 16 s
  }
  ~Recorder() {
    for (const auto* kind : {L".vantortest", L"VantorTest"}) RegDeleteTreeW(ClassesRoot(), (Classes + kind).c_str());
    RegDeleteKeyValueW(HKEY_CURRENT_USER, WineKey, L"Managed");
  }
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// On a desktop of the test's own the one that may stand in for the system's programs.
  static std::wstring ProgramName() { return OwnDesktop() && On64Bit() ? L"recorder64.exe" : L"recorder.exe"; }
  /// All that was started so far: "run COMMAND" or "open TARGET", without quotes.
  [[nodiscard]] std::vector<std::wstring> Starts() const {
    std::istringstream records(folder_.Read(RecordName));
    std::vector<std::wstring> starts;
    for (std::string record; std::getline(records, record);) {
      std::wstring line = text::FromUtf8(record);
      std::erase(line, L'"');
      const std::wstring opens = L"\\recorder.exe open ";
      const auto at = line.find(opens);
      starts.push_back(at == line.npos ? L"run " + line : L"open " + line.substr(at + opens.size()));
    }
    return starts;
  }

 private:
  static constexpr wchar_t RecordName[] = L"record.txt";
  static constexpr wchar_t WineKey[] = L"Software\\Wine\\X11 Driver";
  static inline const std::wstring Classes = L"Software\\Classes\\";

  /// Where document kinds are told: for the user alone, but Wine looks at the machine's only.
  static HKEY ClassesRoot() { return UnderWine() ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }
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
  [[nodiscard]] std::wstring Quoted() const { return L'"' + (folder_ / L"recorder.exe") + L'"'; }

  Folder folder_;
};

}  // namespace vantor::desktop
