#include <doctest/doctest.h>

#include <algorithm>

#include "bar/StartedProgram.h"

using namespace vantor;
using form::Key;
using test::StartedProgram;

namespace {

/// What stands on the bar, from left to right, a gap apart.
std::vector<std::wstring> LeftToRight(const bar::frmMain& main) {
  std::vector<const form::Control*> controls;
  for (const form::Control* control : main.Controls()) {
    if (control->Container() == &main.FrameButtons && control->Visible()) controls.push_back(control);
  }
  std::sort(controls.begin(), controls.end(), [](auto* a, auto* b) { return a->Left() < b->Left(); });
  std::vector<std::wstring> names;
  for (const form::Control* control : controls) {
    if (!names.empty()) CHECK(control->Left() == controls[names.size() - 1]->Right() + 60);
    names.push_back(control->Name());
  }
  return names;
}

}  // namespace

TEST_CASE("buttons without a panel are not there, and leave no gap") {
  StartedProgram bar;
  for (const std::size_t index : {0U, 1U, 2U, 4U, 6U}) bar.Main.SetPanel(index, nullptr);
  CHECK(LeftToRight(bar.Main) == std::vector<std::wstring>{L"ImageLauncher", L"CommandWeb", L"TextMain",
                                                           L"CommandMenu(5)", L"CommandMin", L"CommandExit"});
  for (std::size_t i = 0; i < bar::menu::Count; ++i) bar.Main.SetPanel(i, &bar.Program.HelpPanel);
  CHECK(LeftToRight(bar.Main).size() == 12);
  CHECK(bar.Main.Bounds().Width == bar.Main.CommandExit.Right());
  // Unfolded it still leaves its margin free on the smallest screen.
  CHECK(bar.Main.Web.FrameWeb.Right() + 480 <= 12000);
  CHECK(bar.Main.CommandMenu[3].AccessibleName() == L"Show | Hide Run (Orbel's Program)");
  for (const wchar_t* name : {L"CommandMenu(4)", L"CommandMenu(5)", L"CommandMenu(6)", L"CommandMin", L"CommandExit",
                              L"CommandWeb", L"CommandMenu(0)"}) {
    bar.Desktop.Press(Key::Tab);
    CHECK(bar.Main.ActiveControl()->Name() == name);
  }
}

TEST_CASE("dragging ends within the screen, and leaves room for what unfolds") {
  StartedProgram bar;
  const form::Rect screen = bar.Desktop.Desktop.Bounds;
  const auto placeAfter = [&](int x, int y) {
    bar.Desktop.DragBy(bar.Main, x, y);
    return std::pair(bar.Main.Bounds().Left, bar.Main.Bounds().Top);
  };
  const int right = screen.Width - bar.Main.Bounds().Width - 480;
  const int bottom = screen.Height - bar.Main.Bounds().Height - 600;
  CHECK(placeAfter(-100, -100) == std::pair(0, 0));
  CHECK(placeAfter(right, bottom) == std::pair(right, bottom));
  CHECK(placeAfter(1, 1) == std::pair(right, bottom));
  CHECK(placeAfter(-right, -bottom) == std::pair(0, 0));
  bar.Desktop.Press(Key::F1);
  CHECK(placeAfter(99999, 0).first == screen.Width - bar.Main.Web.FrameWeb.Right() - 480);
  bar.Main.InputMouseMove(form::MouseButton::None);

  // A window manager may tell of the drag's end after the drag.
  bar.Main.InputMoved({-900, 300, bar.Main.Bounds().Width, bar.Main.Bounds().Height});
  CHECK(bar.Main.Bounds().Left == 0);
  CHECK(bar.Main.Bounds().Top == 300);
}

TEST_CASE("the bar stands as it was left, and a place that no screen shows is brought back") {
  struct Row {
    const char* Saved;
    int Left, Top;
  };
  for (const Row row : {Row{"30000\r\n0", 15360 - 480 - 6960, 0}, Row{"-30000\r\n0", 0, 0}, Row{"0\r\n20000", 0, 10440},
                        Row{"-60\r\n0", -60, 0}, Row{"14000\r\n9", 14000, 9}}) {
    CAPTURE(row.Saved);
    const StartedProgram bar("2", row.Saved);
    CHECK(bar.Program.frmMain.Bounds().Left == row.Left);
    CHECK(bar.Program.frmMain.Bounds().Top == row.Top);
    CHECK(bar.Program.frmMain.Bounds().Width == 6960);
    CHECK(bar.Program.frmMain.TextMain.Text() == L"Vantor");
    CHECK(bar.Program.frmMain.TextMain.SelLength() == 6);
  }
}

TEST_CASE("the bar and an open panel come along when the screen or the room on it shrinks") {
  StartedProgram program("2", "6000\r\n9000");
  form::Screen& screen = program.Desktop.Desktop;
  screen.Bounds = {0, 0, 12000, 9000};
  screen.WorkArea = {0, 600, 12000, 8400};
  program.Desktop.Press(form::Key::F6);
  program.Main.InputScreensChanged();
  program.Choose.InputScreensChanged();
  CHECK(program.Main.Bounds().Right() <= 12000 - 480);
  CHECK(program.Main.Bounds().Bottom() <= 9000 - 600);
  CHECK(program.Choose.Bounds().Bottom() <= 9000);
  // A taskbar along the top, and a screen that is narrower than the bar.
  screen.Bounds = screen.WorkArea = {0, 600, 6000, 8400};
  screen.Bounds.Top = 0;
  form::Rect top = program.Main.Bounds();
  top.Top = 0;
  program.Main.SetBounds(top);
  program.Main.InputScreensChanged();
  CHECK(program.Main.Bounds().Left == 0);
  CHECK(program.Main.Bounds().Top == 600);
}

TEST_CASE("the bar climbs on top each second, except while a message or a panel is open or the user does not want it") {
  StartedProgram bar;
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Desktop.WhenModal([&](form::Form& dialog) {
    CHECK(!bar.Main.TopMost());
    bar.Desktop.Advance(5000);
    CHECK(!bar.Main.TopMost());
    dialog.InputClose();
  });
  bar.Program.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Desktop.Press(Key::F7);
  bar.ExpectMessage();
  bar.Program.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(5000);
  CHECK(!bar.Main.TopMost());
  bar.Desktop.Press(Key::F7);
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Program.Options.AlwaysOnTop = 0;
  bar.ExpectMessage();
  bar.Program.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(5000);
  CHECK(!bar.Main.TopMost());
}

TEST_CASE("an idle line shows the product's name again, ready to be typed over") {
  StartedProgram bar;
  bar.Desktop.Press(Key::F12);
  CHECK(bar.Main.TextMain.Text().empty());
  bar.Desktop.Advance(50000);
  bar.Desktop.Type(L"x");
  bar.Desktop.Advance(1000);
  bar.Desktop.DoubleClick(bar.Main.TextMain);
  bar.Desktop.Advance(60000);
  CHECK(bar.Main.TextMain.Text().empty());
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TextMain.Text() == L"Vantor");
  CHECK(bar.Main.TextMain.SelLength() == 6);
}

TEST_CASE("leaving before the list was read keeps the list") {
  StartedProgram files;
  files.Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\ListWeb.Orbel", "\"x\",\"http://x\"\r\n");
  form::Headless desktop;
  start::Program program(desktop, files.Services.All());
  program.Environment = files.Program.Environment;
  program.Settings.WebUpper = 0;
  program.frmMain.Show();
  desktop.Click(program.frmMain.CommandExit);
  CHECK(files.Services.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel").starts_with("2\r\n-1\r\n-1\r\n-1\r\n0\r\n"));
}
