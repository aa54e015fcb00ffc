// The maker's other programs: their panel, their code, and what is told when one is gone.

#include <doctest/doctest.h>

#include <algorithm>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Recorder.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

constexpr char Panel[] = "Orbel's Programs";

/// The window of the panel that has this title; null while it is not open.
HWND FindPanel(const Program& program, const std::string& title) {
  DWORD process = 0;
  GetWindowThreadProcessId(program.Bar(), &process);
  const auto windows = window::OfProcess(process);
  const auto found = std::find_if(windows.begin(), windows.end(), [&](HWND one) { return window::Text(one) == title; });
  return found == windows.end() ? nullptr : *found;
}

HWND OpenPanel(const Program& program) {
  input::Press(VK_F5);
  Await("the panel", [&] {
    HWND panel = FindPanel(program, Panel);
    return panel != nullptr && window::HasInput(panel);
  });
  return FindPanel(program, Panel);
}

std::vector<std::string> Entries(HWND list) {
  std::vector<std::string> entries;
  const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  for (LRESULT i = 0; i < count; ++i) {
    wchar_t text[MAX_PATH] = L"";
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
    entries.push_back(Narrow(text));
  }
  return entries;
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

}  // namespace

TEST_CASE("companions are listed, completed and started; one that vanished is told; without any there is no button") {
  const Folder outer;
  const Folder folder(outer.Path("Orbel\\"));
  const std::string names[] = {"Draw it",
                               "\xC3\x89"
                               "cran"};
  std::string paths[2];
  for (int i = 0; i < 2; ++i) {
    const std::string name = "Orbel\\" + names[i] + "\\" + names[i] + ".exe";
    outer.CopyProgram("recorder.exe", name);
    paths[i] = outer.Path(name);
  }
  folder.CopyProgram("recorder.exe", "VantorHelp.exe");
  folder.WriteSettings({});
  Recorder recorder(folder);
  {
    Program program(folder);
    program.AwaitBar();
    CHECK(program.Button("Show | Hide Run (Orbel's Program)") != nullptr);
    HWND panel = OpenPanel(program);
    HWND list = window::Control(panel, "ListBox");
    CHECK(Entries(list) == std::vector<std::string>{names[0], names[1], "VantorHelp"});
    input::Press(VK_F5);
    program.AwaitBar();
    CHECK(FindPanel(program, Panel) == nullptr);

    OpenPanel(program);
    input::Press(VK_DOWN);
    CHECK_BECOMES(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == Quoted(paths[1]));
    program.AwaitBar();
    OpenPanel(program);
    CHECK(SendMessageW(list, LB_GETCURSEL, 0, 0) == 1);
    input::Press(VK_DOWN);
    input::Click(window::Middle(window::Control(panel, "Button", "Open")));
    CHECK(recorder.Next() == Quoted(folder.Path("VantorHelp.exe")));

    program.AwaitBar();
    program.TypeLine("r-d");
    CHECK_BECOMES(program.LineWithSelection(), "r-D[raw it]");
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == Quoted(paths[0]));
    CHECK_BECOMES(program.Line(), "");
    program.TypeLine("r-\xC3\xA9");
    CHECK_BECOMES(program.Line(), "r-" + names[1]);
    input::Press(VK_RETURN);
    CHECK(recorder.Next() == Quoted(paths[1]));

    const auto checkGone = [&] {
      program.AwaitMessage();
      CHECK(program.MessageText().find("There was some error. Could not run the program.\n") != std::string::npos);
      program.AnswerMessage();
      program.AwaitBar();
    };
    // What was started has to end before its file can go.
    for (const std::string& path : paths) {
      Await("the end of " + path, [&] { return DeleteFileW(Wide(path).c_str()) != FALSE; });
    }
    program.TypeLine("r-draw");
    input::Press(VK_RETURN);
    checkGone();
    CHECK(program.Line() == "r-Draw it");
    OpenPanel(program);
    input::Press(VK_UP);
    input::Press(VK_RETURN);
    checkGone();
    program.Exit();
  }
  REQUIRE(DeleteFileW(Wide(folder.Path("VantorHelp.exe")).c_str()));
  Program program(folder);
  program.AwaitBar();
  CHECK(program.Button("Show | Hide Run (Orbel's Program)") == nullptr);
  input::Press(VK_F5);
  program.TypeLine("r-d");
  input::Press(VK_RETURN);
  input::Type("x");
  CHECK_BECOMES(program.Line(), "r-dx");
  CHECK(FindPanel(program, Panel) == nullptr);
  CHECK(recorder.Lines().size() == 4);
}

}  // namespace vantor::desktop
