// VantorCheck: tests the Vantor.exe next to it on the Windows that it is started on, and writes the results to a
// report. Needs nothing but Windows, and what lies beside it. package/VantorCheck.txt is for who runs it.
//
//   VantorCheck               asks whether it may have the keyboard and the mouse, and does everything
//   VantorCheck --yes         does everything without asking
//   VantorCheck --flows FILE… plays these flows, and reports those that failed
//   VantorCheck --tests …     runs the desktop tests, with doctest's options

#define DOCTEST_CONFIG_IMPLEMENT
#include <doctest/doctest.h>

#include <cstdio>
#include <functional>
#include <sstream>

#include "../../bench/win32/Starts.h"
#include "driver/Folder.h"
#include "flows/Player.h"
#include "product/Product.h"
#include "product/Product.rc.h"

namespace vantor::check {
namespace {

using namespace desktop;

constexpr int Rounds = 10;

std::string Describe() {
  wchar_t locale[LOCALE_NAME_MAX_LENGTH] = L"";
  GetUserDefaultLocaleName(locale, LOCALE_NAME_MAX_LENGTH);
  // The system scales this program, so that only the width in real pixels tells the screen's scale.
  DEVMODEW mode = {};
  mode.dmSize = sizeof mode;
  EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode);
  const int dpi = MulDiv(96, static_cast<int>(mode.dmPelsWidth), GetSystemMetrics(SM_CXSCREEN));
  SYSTEM_INFO machine = {};
  GetSystemInfo(&machine);
  constexpr wchar_t Key[] = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
  std::wostringstream text;
  text << L"Vantor " PRODUCT_PACKAGE_VERSION ", " << std::filesystem::file_size(Beside(L"Vantor.exe")) << L" bytes\n"
       << RegistryText(HKEY_LOCAL_MACHINE, Key, L"ProductName") << L", build "
       << RegistryText(HKEY_LOCAL_MACHINE, Key, L"CurrentBuild") << (On64Bit() ? L", 64-bit" : L", 32-bit")
       << (UnderWine() ? L", by Wine" : L"") << L"\nlanguage " << locale << L", code page " << GetACP() << L", screen "
       << GetSystemMetrics(SM_CXSCREEN) << L" x " << GetSystemMetrics(SM_CYSCREEN) << L" at " << dpi
       << L" dots per inch, " << machine.dwNumberOfProcessors << L" processors\n";
  return Narrow(text.str());
}

std::string MeasureStarts() {
  const Folder empty;
  const Folder full;
  empty.WriteSettings({});
  full.WriteSettings({.WebUpper = 399});
  full.WriteData(L"ListWeb", ListBytes(Items(400, {L"Site", L"http://www.example.org"})));
  std::vector<Contestant> contestants = {{L"a bare window with a text box", Beside(L"Floor.exe")},
                                         {L"Vantor, no items", empty.CopyProgram(L"Vantor.exe", L"Vantor.exe")},
                                         {L"Vantor, 400 items", full.CopyProgram(L"Vantor.exe", L"Vantor.exe")},
                                         {L"the system's Run dialog", Beside(L"RunDialog.exe")}};
  for (Contestant& one : contestants) one.Command = L'"' + one.Command + L'"';
  ::MeasureStarts(contestants, Rounds);
  std::string table;
  for (const Contestant& one : contestants) {
    table += one.Absent ? Narrow(one.Name + L" showed no text box that took a key\n") : LineOf(one, contestants[0]);
  }
  return table;
}

/// Tests and measures. Reports results as they come in, and returns whether everything passed.
bool DoEverything(const std::function<void(const std::string&)>& tell) {
  const auto begin = GetTickCount64();
  tell("Please send this report to " + Narrow(std::wstring(product::BugReportAddress)) + "\n\n" + Describe());
  tell("\n== What a user does\n");
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(Beside(L"flows"))) files.push_back(entry.path());
  std::ranges::sort(files);
  const bool flows = flows::PlayAll(files, [&](const std::string& line) { tell(line + '\n'); });

  tell("\n== What only windows show: seconds, and what was not as it should be\n");
  std::ostringstream told;
  doctest::Context context;
  for (const char* option : {"no-intro", "no-colors", "duration"}) context.setOption(option, true);
  context.setCout(&told);
  const bool tests = context.run() == 0;
  tell(told.str());

  tell("\n== From the start of a process, in ms, to its first paint (median of " + std::to_string(Rounds) +
       ", quickest, both as multiples of the first program's) and to its first key (the same)\n" + MeasureStarts());
  tell(std::string("\n== ") + (flows && tests ? "All passed" : "Something failed") + ", in " +
       std::to_string((GetTickCount64() - begin) / 1000) + " s\n");
  return flows && tests;
}

int Main(bool asks) {
  const auto say = [asks](const std::wstring& text, UINT kind) {
    if (!asks) std::fprintf(stderr, "%ls\n", text.c_str());
    return asks ? MessageBoxW(nullptr, text.c_str(), L"VantorCheck", kind | MB_SETFOREGROUND) : IDOK;
  };
  if (FindWindowW(L"ThunderRT6Main", L"Vantor Orbel") != nullptr) {
    say(L"Vantor is running. Please end it first (F10).", MB_ICONWARNING);
    return 2;
  }
  const int answer =
      say(L"VantorCheck now takes the keyboard, the mouse and the clipboard for some five minutes, and "
          L"opens and closes windows. Please save your work, and touch nothing until it says that it is "
          L"done. What it writes lies in folders of its own, which it removes; what is on the clipboard is lost.",
          MB_OKCANCEL | MB_ICONINFORMATION);
  if (answer != IDOK) return 2;
  std::filesystem::path path = Beside(L"VantorCheck-report.txt");
  std::ofstream report(path);
  // On a medium that can't be written to.
  if (!report) report.open(path = std::filesystem::temp_directory_path() / path.filename());
  if (!report) throw std::runtime_error("the report can't be written");
  ShowWindow(GetConsoleWindow(), SW_MINIMIZE);
  const auto tell = [&](const std::string& text) {
    report << text << std::flush;  // so that a crash leaves what was found so far
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
  };
  bool passed = false;
  try {
    passed = DoEverything(tell);
  } catch (const std::exception& error) {
    tell(std::string("\n== Broken off: ") + error.what() + '\n');
  }
  ShowWindow(GetConsoleWindow(), SW_RESTORE);
  say(L"Done. The report is\n" + path.wstring(), MB_ICONINFORMATION);
  return passed ? 0 : 1;
}

}  // namespace
}  // namespace vantor::check

int main(int count, char** arguments) {
  const std::vector<std::string> all(arguments + 1, arguments + count);
  try {
    if (!all.empty() && all[0] == "--tests") return doctest::Context(count - 1, arguments + 1).run();
    if (!all.empty() && all[0] == "--flows") {
      const auto tell = [](const std::string& line) { std::fprintf(stderr, "%s\n", line.c_str()); };
      return vantor::flows::PlayAll({all.begin() + 1, all.end()}, tell) ? 0 : 1;
    }
    if (!all.empty() && all[0] != "--yes") return 2;
    return vantor::check::Main(all.empty());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}
