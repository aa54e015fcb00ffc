// desktop: --root win32
// desktop: --root win64

#include <future>
#include <thread>

#include "driver/Check.h"
#include "driver/Folder.h"
#include "driver/Window.h"
#include "win32/base/Handle.h"
#include "win32/base/ProgramCommand.h"
#include "win32/service/DataFiles.h"
#include "win32/service/Programs.h"
#include "win32/service/ScriptShell.h"
#include "win32/service/System.h"
#include "win32/window/WindowsDesktop.h"

namespace vantor::win32 {

using namespace desktop;

namespace {

struct Starts {
  Apartment Com;
  Programs Plain{Com};
  ScriptShell Shell{Com};
  Folder Place;
  std::wstring Ran = Place / L"ran.txt";
};

/// A batch file that creates a file next to itself when it runs.
constexpr char Leaves[] = "@echo ran>\"%~dp0ran.txt\"\r\n";

}  // namespace

TEST_CASE("a text that names a file starts exactly that file; a command line the program it begins with") {
  Starts starts;
  const std::wstring program = starts.Place.Write(L"my tool.cmd", Leaves);
  // Windows would prefer to start this one.
  CopyFileW(L"C:\\windows\\system32\\attrib.exe", (starts.Place / L"my.exe").c_str(), FALSE);
  const std::wstring arguments = L" /c echo ran>\"" + starts.Ran + L"\"";
  const auto ran = [&] {
    return Eventually([&] { return DataFiles().Read(starts.Ran).Bytes.value_or("").starts_with("ran"); }) &&
           Eventually([&] { return DeleteFileW(starts.Ran.c_str()) != FALSE; });
  };
  const std::wstring command = L"C:\\windows\\system32\\cmd.exe";
  const std::wstring quoted = L'"' + command + L'"';
  for (const std::wstring& line : {program, L"cmd" + arguments, command + arguments, quoted + arguments})
    CHECK((starts.Plain.StartCommandLine(line) && ran()));
  CHECK((starts.Plain.ShellOpen(program) > 32 && ran()));
  WithAndWithout(L"WScript.Shell", [&](bool with) {
    CAPTURE(with);
    for (const std::wstring& line : {L'"' + program + L'"', L"cmd.exe" + arguments})
      CHECK((starts.Shell.Run(line) && ran()));
    CHECK_FALSE(starts.Shell.Run(L"nosuchprogram"));
  });
}

TEST_CASE("what can't be started is reported, and nothing is started in its place") {
  Starts starts;
  const std::wstring text = starts.Place.Write(L"my tool.unknown", "no program");
  starts.Place.Write(L"my.cmd", Leaves);
  // Where Windows itself would look for a program first.
  const std::wstring planted = System({}, {}).ProgramFolder() + L"\\vantor-planted.exe";
  REQUIRE(CopyFileW(L"C:\\windows\\system32\\attrib.exe", planted.c_str(), FALSE) != FALSE);
  CHECK_FALSE(starts.Plain.StartCommandLine(L"vantor-planted"));
  CHECK(ParseProgramCommand(planted.substr(0, planted.size() - 4)).Path == planted);
  DeleteFileW(planted.c_str());
  for (const std::wstring& line :
       {std::wstring(), std::wstring(L"nosuchprogram x y"), std::wstring(L"nosuch:address"), text, starts.Place.Path,
        starts.Place / L"none.exe", std::wstring(2000, L'x'), std::wstring(40000, L'x')}) {
    CAPTURE(line.size());
    CHECK_FALSE(starts.Plain.StartCommandLine(line));
    if (line.empty() || line == starts.Place.Path) continue;
    CHECK(starts.Plain.ShellOpen(line) <= 32);
    CHECK_FALSE(starts.Shell.Run(L'"' + line + L'"'));
    CHECK_FALSE(starts.Shell.Open(line));
  }
  CHECK(GetFileAttributesW(starts.Ran.c_str()) == INVALID_FILE_ATTRIBUTES);
  CHECK(starts.Plain.RequestMakeCall(L"", L"Vantor") <= 0);
}

TEST_CASE("what only looks like a copy that runs neither holds a start up nor ends it") {
  // The name is held by another thread of this process, which has a window like that of a copy, but is not a copy.
  std::promise<bool> held;
  std::promise<void> end;
  std::thread holder([&] {
    System first(L"Vantor Test", {});
    held.set_value(!first.PreviousInstance());
    end.get_future().wait();
  });
  CHECK(held.get_future().get());
  win32::Desktop desktop;
  desktop.SetApplicationTitle(L"Vantor Test");
  const WindowHandle bar(window::Make(0, {0, 0}, {9, 9}));
  ShowWindow(bar.Get(), SW_SHOW);
  System system(L"Vantor Test", {});
  CHECK(system.PreviousInstance());
  const DWORD begin = GetTickCount();
  CHECK_FALSE(system.ActivateInstance(L"Vantor Test"));
  CHECK(GetTickCount() - begin < 2500);
  end.set_value();
  holder.join();
  CHECK_FALSE(system.PreviousInstance());
}

}  // namespace vantor::win32
