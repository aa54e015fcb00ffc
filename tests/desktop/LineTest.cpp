// The command line under real keys: completion, hot keys, minimise.

#include <doctest/doctest.h>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {
namespace {

/// A folder with programs to complete; none of them needs to run.
class NamedFolder : public Folder {
 public:
  NamedFolder() {
    Write("a.exe", "");
    WriteSettings({.ProgUpper = 2});
    const std::string target = Path("a.exe");
    Write("Vantor\\ListProg.Orbel",
          "\xEF\xBB\xBF" + ListBytes({{"notepad", target}, {"Net tool", target}, {"\xC3\x84pfel", target}}));
  }
};

}  // namespace

TEST_CASE("names and code words are completed as they are typed") {
  const NamedFolder folder;
  Program program(folder);
  program.AwaitBar();
  CHECK_BECOMES(program.LineWithSelection(), "[Vantor]");

  const std::pair<std::string, std::string> rows[] = {
      {"p-N", "p-n[otepad]"},
      {"P-ne", "P-Ne[t tool]"},
      {"p-notepad", "p-notepad"},
      {"p-notex", "p-notex"},
      {"p-\xC3\xA4", "p-\xC3\x84[pfel]"},
      {"p-", "p-"},
      {"w-n", "w-n"},
      {"c.a", "c.A[ccessibility]"},
      {"c.add", "c.Add[NewPrinter]"},
      {"c.p", "c.p"},
      {"c.t", "c.t"},
      {"c.di", "c.Di"},  // "c.d" has become "c.DateTime"
      {"d.s", "d.S[endTo]"},
      {"d.startu", "d.Startu[p]"},
      {"e.s", "e.s[uggestions@orbel.example]"},
  };
  for (const auto& row : rows) {
    program.TypeLine(row.first);
    CHECK_BECOMES(program.LineWithSelection(), row.second);
  }

  // Backspace takes the proposal away and brings none back; the next letter does.
  program.TypeLine("p-not");
  input::Press(VK_BACK);
  CHECK_BECOMES(program.LineWithSelection(), "p-not");
  input::Press(VK_BACK);
  CHECK_BECOMES(program.LineWithSelection(), "p-no");
  input::Type("t");
  CHECK_BECOMES(program.LineWithSelection(), "p-not[epad]");
  input::Press(VK_END);
  CHECK_BECOMES(program.LineWithSelection(), "p-notepad");
  program.Exit();
}

TEST_CASE("F12 and a double click clear the line; any key replaces the product name") {
  const NamedFolder folder;
  Program program(folder);
  program.AwaitBar();
  input::Type("x");
  CHECK_BECOMES(program.Line(), "x");
  input::Press(VK_F12);
  CHECK_BECOMES(program.Line().empty(), true);
  program.TypeLine("some words");
  input::DoubleClick(window::Middle(program.TextMain()));
  CHECK_BECOMES(program.Line().empty(), true);
  input::Type("y");
  CHECK_BECOMES(program.Line(), "y");

  // The button leaves as F10 does.
  input::Click(window::Middle(program.Button("Exit")));
  CHECK(program.AwaitEnd() == 0);
}

TEST_CASE("Escape, F9 and the button minimise the bar; restored, it is on top and takes keys") {
  const NamedFolder folder;
  Program program(folder);
  HWND bar = program.AwaitBar();
  program.TypeLine("kept");
  for (const int way : {0, 1, 2}) {
    CAPTURE(way);
    if (way == 0) input::Press(VK_ESCAPE);
    if (way == 1) input::Press(VK_F9);
    if (way == 2) input::Click(window::Middle(program.Button("Minimize")));
    CHECK_BECOMES(IsIconic(bar) != FALSE, true);
    CHECK_FALSE(window::IsTopMost(bar));
    OpenIcon(bar);
    CHECK_BECOMES(IsIconic(bar) != FALSE, false);
    SetForegroundWindow(bar);
    program.AwaitBar();
    CHECK(program.Line().starts_with("kept"));
    CHECK_BECOMES(window::IsTopMost(bar), true);
    input::Press(VK_END);
    input::Type("!");
    CHECK_BECOMES(program.Line(), "kept" + std::string(static_cast<std::size_t>(way) + 1, '!'));
  }
  program.Exit();
}

}  // namespace vantor::desktop
