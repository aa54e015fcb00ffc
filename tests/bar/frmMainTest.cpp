#include "bar/frmMain.h"

#include <doctest/doctest.h>

#include <algorithm>

#include "fake/TestProgram.h"
#include "start/Places.h"

namespace vantor::bar {
namespace {

using form::Key;
using test::StartedProgram;
using test::Texts;

/// What stands on the bar, from left to right, a gap apart.
Texts LeftToRight(const frmMain& main) {
  std::vector<const form::Control*> controls;
  for (const form::Control* control : main.Controls()) {
    if (control->Container() == &main.FrameButtons && control->Visible()) controls.push_back(control);
  }
  std::sort(controls.begin(), controls.end(), [](auto* a, auto* b) { return a->Left() < b->Left(); });
  Texts names;
  for (const form::Control* control : controls) {
    if (!names.empty()) CHECK(control->Left() == controls[names.size() - 1]->Right() + 60);
    names.push_back(control->Name());
  }
  return names;
}

TEST_CASE("buttons without a panel are not there, and leave no gap") {
  StartedProgram program;
  frmMain& bar = program.Main;
  for (const std::size_t index : {0U, 1U, 2U, 4U, 6U}) bar.SetPanel(index, nullptr);
  CHECK(LeftToRight(bar) ==
        Texts{L"ImageLauncher", L"CommandWeb", L"TextMain", L"CommandMenu(5)", L"CommandMin", L"CommandExit"});
  for (std::size_t i = 0; i < menu::Count; ++i) bar.SetPanel(i, &program.Program.HelpPanel);
  CHECK(LeftToRight(bar).size() == 12);
  CHECK(bar.Bounds().Width == bar.CommandExit.Right());
  // Unfolded it still leaves its margin free on the smallest screen.
  CHECK(bar.Web.FrameWeb.Right() + 480 <= 12000);
  for (const auto* name : {L"CommandMenu(4)", L"CommandMenu(5)", L"CommandMenu(6)", L"CommandMin", L"CommandExit",
                           L"CommandWeb", L"CommandMenu(0)"}) {
    program.Desktop.Press(Key::Tab);
    CHECK(bar.ActiveControl()->Name() == name);
  }
}

TEST_CASE("dragging ends within the screen, and leaves room for what unfolds") {
  StartedProgram program;
  frmMain& bar = program.Main;
  const form::Rect screen = program.Desktop.Desktop.Bounds;
  const int right = screen.Width - bar.Bounds().Width - 480;
  const int bottom = screen.Height - bar.Bounds().Height - 600;
  const struct {
    int X, Y, Left, Top;
  } rows[] = {{-100, -100, 0, 0}, {right, bottom, right, bottom}, {1, 1, right, bottom}, {-right, -bottom, 0, 0}};
  for (const auto& row : rows) {
    program.Desktop.DragBy(bar, row.X, row.Y);
    CHECK(bar.Bounds().Left == row.Left);
    CHECK(bar.Bounds().Top == row.Top);
  }
  program.Desktop.Press(Key::F1);
  program.Desktop.DragBy(bar, 99999, 0);
  CHECK(bar.Bounds().Left == screen.Width - bar.Web.FrameWeb.Right() - 480);
  bar.InputMouseMove(form::MouseButton::None);
  // A window manager may tell of the drag's end after the drag.
  bar.InputMoved({-900, 300, bar.Bounds().Width, bar.Bounds().Height});
  CHECK(bar.Bounds().Left == 0);
  CHECK(bar.Bounds().Top == 300);
}

TEST_CASE("the bar stands as it was left, and a place that no screen shows is brought back") {
  const struct {
    const char* Saved;
    int Left, Top;
  } rows[] = {{"30000\r\n0", 15360 - 480 - 6960, 0},
              {"-30000\r\n0", 0, 0},
              {"0\r\n20000", 0, 10440},
              {"-60\r\n0", -60, 0},
              {"14000\r\n9", 14000, 9}};
  for (const auto& row : rows) {
    CAPTURE(row.Saved);
    const StartedProgram program("2", row.Saved);
    CHECK(program.Main.Bounds() == form::Rect{row.Left, row.Top, 6960, program.Main.Bounds().Height});
    CHECK(program.Main.TextMain.Text() == L"Vantor");
  }
}

TEST_CASE("the bar and an open panel come along when the screen or the room on it shrinks") {
  StartedProgram program("2", "6000\r\n9000");
  frmMain& bar = program.Main;
  program.Desktop.Desktop = {{0, 0, 12000, 9000}, {0, 600, 12000, 8400}};
  program.Desktop.Press(Key::F6);
  bar.InputScreensChanged();
  program.Choose.InputScreensChanged();
  CHECK((bar.Bounds().Right() <= 12000 - 480 && bar.Bounds().Bottom() <= 9000 - 600));
  CHECK(program.Choose.Bounds().Bottom() <= 9000);
  // A taskbar along the top, and a screen that is narrower than the bar.
  program.Desktop.Desktop = {{0, 0, 6000, 8400}, {0, 600, 6000, 8400}};
  bar.SetBounds({bar.Bounds().Left, 0, bar.Bounds().Width, bar.Bounds().Height});
  bar.InputScreensChanged();
  CHECK((bar.Bounds().Left == 0 && bar.Bounds().Top == 600));
}

TEST_CASE("the bar climbs on top each second, except while a message or a panel is open or the user does not want it") {
  StartedProgram program;
  const auto climbs = [&] {
    program.Desktop.Advance(5000);
    return program.Main.TopMost();
  };
  const auto climbsAfterMessage = [&] {
    program.Expect([&](auto&) { CHECK(!climbs()); });
    program.Program.Messages.ShowList(L"MessageEmptyList");
    return climbs();
  };
  CHECK(climbs());
  CHECK(climbsAfterMessage());
  program.Desktop.Press(Key::F7);
  CHECK(!climbsAfterMessage());
  program.Desktop.Press(Key::F7);
  CHECK(climbs());
  program.Program.Options.AlwaysOnTop = 0;
  CHECK(!climbsAfterMessage());
}

TEST_CASE("an idle line shows the product's name again, ready to be typed over") {
  StartedProgram program;
  const form::TextBox& line = program.Main.TextMain;
  program.Desktop.Press(Key::F12);
  program.Desktop.Advance(50000);
  program.Desktop.Type(L"x");
  program.Desktop.Advance(1000);
  program.Desktop.DoubleClick(program.Main.TextMain);
  program.Desktop.Advance(60000);
  CHECK(line.Text().empty());
  program.Desktop.Advance(1000);
  CHECK(line.Text() == L"Vantor");
  CHECK(line.SelLength() == 6);
}

TEST_CASE("leaving before the list was read keeps the list") {
  test::TestProgram program;
  program.Program.Environment.ProgramFolder = L"C:\\Vantor\\";
  start::SetDataFiles(program.Program.Environment);
  program.Program.Settings.WebUpper = 0;
  program.Computer.Disk.AddFile(L"C:\\Vantor\\Vantor\\ListWeb.Orbel", "\"x\",\"http://x\"\r\n");
  program.Main.Show();
  program.Desktop.Click(program.Main.CommandExit);
  CHECK(program.Computer.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel").starts_with("2\r\n-1\r\n-1\r\n-1\r\n0\r\n"));
}

}  // namespace
}  // namespace vantor::bar
