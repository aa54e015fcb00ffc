#include <doctest/doctest.h>

#include <memory>

#include "TestFolder.h"
#include "win32/CommandLine.h"
#include "win32/Programs.h"
#include "win32/ScriptShell.h"
#include "win32/WindowsServices.h"

using namespace vantor::win32;

namespace {

/// A batch file that leaves a file beside itself when it runs.
constexpr std::string_view Leaves = "@echo ran>\"%~dp0ran.txt\"\r\n";

struct Starts {
  Apartment Com;
  Programs Plain{Com};
  ScriptShell Shell{Com};
  TestFolder Folder;
  [[nodiscard]] bool Ran() const {
    const std::wstring file = Folder / L"ran.txt";
    return Becomes([&] { return DataFiles().Read(file).value_or("").starts_with("ran"); });
  }
};

}  // namespace

TEST_CASE("a text that names a file starts exactly that file") {
  Starts starts;
  const std::wstring program = starts.Folder.Make(L"my tool.cmd", Leaves);
  // Windows would rather start this one.
  CopyFileW(L"C:\\windows\\system32\\attrib.exe", (starts.Folder / L"my.exe").c_str(), FALSE);
  SUBCASE("as a command line") { CHECK(starts.Plain.StartCommandLine(program)); }
  SUBCASE("through the scripting shell") { CHECK(starts.Shell.Run(program)); }
  SUBCASE("by the shell") { CHECK(starts.Plain.ShellOpen(program) > 32); }
  CHECK(starts.Ran());
}

TEST_CASE("a command line starts the program it begins with") {
  Starts starts;
  const std::wstring arguments = L" /c echo ran>\"" + starts.Folder / L"ran.txt" + L"\"";
  SUBCASE("on the search path") { CHECK(starts.Plain.StartCommandLine(L"cmd" + arguments)); }
  SUBCASE("in quotes") { CHECK(starts.Plain.StartCommandLine(L"\"C:\\windows\\system32\\cmd.exe\"" + arguments)); }
  SUBCASE("through the scripting shell") { CHECK(starts.Shell.Run(L"cmd.exe" + arguments)); }
  CHECK(starts.Ran());
}

TEST_CASE("what can't be started is told, and nothing is started in its place") {
  Starts starts;
  const std::wstring text = starts.Folder.Make(L"my text.unknown", "no program");
  starts.Folder.Make(L"my.cmd", Leaves);
  for (const std::wstring& line : {std::wstring(), std::wstring(L"nosuchprogram"), std::wstring(L"nosuchprogram x y"),
                                   text, starts.Folder.Path, starts.Folder / L"none.exe", std::wstring(40000, L'x')}) {
    CAPTURE(line.size());
    CHECK_FALSE(starts.Plain.StartCommandLine(line));
    CHECK(starts.Plain.ShellOpen(line.empty() ? L"none" : text) <= 32);
  }
  for (const std::wstring& target :
       {std::wstring(L"nosuchprogram"), starts.Folder / L"none.txt", std::wstring(L"nosuch:address"), text}) {
    CAPTURE(target.size());
    CHECK_FALSE(starts.Shell.Run(target));
  }
  CHECK(GetFileAttributesW((starts.Folder / L"ran.txt").c_str()) == INVALID_FILE_ATTRIBUTES);
  CHECK(starts.Plain.RequestMakeCall(L"", L"Vantor") <= 0);
}

TEST_CASE("a command line is parted where Windows would") {
  const wchar_t* lines[][3] = {{L"\"C:\\a b\\c.exe\"  /x \"y\"", L"C:\\a b\\c.exe", L"/x \"y\""},
                               {L"cmd /c dir", L"cmd", L"/c dir"},
                               {L"C:\\windows\\system32\\cmd.exe /c a b", L"C:\\windows\\system32\\cmd.exe", L"/c a b"},
                               {L"nosuch one", L"nosuch", L"one"},
                               {L"\"open", L"open", L""},
                               {L"", L"", L""}};
  for (const auto& [line, program, arguments] : lines) {
    const CommandLine parts = SplitCommandLine(line);
    CHECK(parts.Program == program);
    CHECK(parts.Arguments == arguments);
  }
}

namespace {

DWORD WINAPI HoldUntilTold(void* handles) {
  auto* const events = static_cast<KernelHandle*>(handles);
  Instance first(L"Vantor Test");
  if (!first.OtherRuns()) SetEvent(events[0].Get());
  WaitForSingleObject(events[1].Get(), 10000);
  return 0;
}

}  // namespace

TEST_CASE("a copy sees the one that runs, and takes its place when that ends") {
  KernelHandle events[] = {KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
                           KernelHandle(CreateEventW(nullptr, TRUE, FALSE, nullptr))};
  const KernelHandle thread(CreateThread(nullptr, 0, HoldUntilTold, events, 0, nullptr));
  REQUIRE(WaitForSingleObject(events[0].Get(), 10000) == WAIT_OBJECT_0);
  WindowsServices services(L"Vantor Test", [](std::wstring_view) {});
  auto& system = services.All().System;
  CHECK(system.PreviousInstance());
  SetEvent(events[1].Get());
  // Waits for its window in vain, but no longer than the other lives.
  const DWORD begin = GetTickCount();
  CHECK_FALSE(system.ActivateInstance(L"no such title"));
  CHECK(GetTickCount() - begin < 2500);
  CHECK_FALSE(system.PreviousInstance());
}

namespace {

struct TestWindow {
  TestWindow(const wchar_t* windowClass, const wchar_t* title, HWND owner, DWORD style) {
    WNDCLASSW made = {};
    made.lpfnWndProc = DefWindowProcW;
    made.hInstance = GetModuleHandleW(nullptr);
    made.lpszClassName = windowClass;
    RegisterClassW(&made);
    Window.Reset(
        CreateWindowExW(0, windowClass, title, style, 50, 50, 200, 100, owner, nullptr, made.hInstance, nullptr));
  }
  WindowHandle Window;
};

}  // namespace

TEST_CASE("the bar of the copy that runs is restored, whatever stands before its application window") {
  const TestWindow application(L"ThunderRT6Main", L"Vantor Test Title", nullptr, WS_POPUP);
  const TestWindow bar(L"VantorTestBar", L"bar", application.Window.Get(), WS_POPUP | WS_VISIBLE | WS_MINIMIZEBOX);
  ShowWindow(bar.Window.Get(), SW_MINIMIZE);
  REQUIRE(IsIconic(bar.Window.Get()));
  std::unique_ptr<TestWindow> helper;
  SUBCASE("directly the bar") {}
  SUBCASE("a window that can't be seen") {
    helper = std::make_unique<TestWindow>(L"VantorTestHelper", L"", nullptr, WS_POPUP);
    SetWindowPos(helper->Window.Get(), bar.Window.Get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    REQUIRE(GetWindow(application.Window.Get(), GW_HWNDPREV) == helper->Window.Get());
  }
  WindowsServices services(L"Vantor Test", [](std::wstring_view) {});
  CHECK(services.All().System.ActivateInstance(L"Vantor Test Title"));
  CHECK_FALSE(IsIconic(bar.Window.Get()));
  CHECK(GetForegroundWindow() == bar.Window.Get());
  CHECK_FALSE(services.All().System.ActivateInstance(L"BypassThisInstance"));
}

TEST_CASE("the program and Windows know their folders") {
  WindowsServices services(L"Vantor Test", [](std::wstring_view) {});
  auto& system = services.All().System;
  wchar_t file[MAX_PATH];
  GetModuleFileNameW(nullptr, file, MAX_PATH);
  const std::wstring folder = system.ProgramFolder();
  CHECK(std::wstring(file).starts_with(folder + L"\\"));
  CHECK(std::wstring(file).find(L'\\', folder.size() + 1) == std::wstring::npos);
  CHECK(services.All().FileSystem.FileExists(system.WindowsDirectory() + L"\\explorer.exe"));
}
