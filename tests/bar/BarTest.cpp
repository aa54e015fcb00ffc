#include <doctest/doctest.h>

#include "fake/TestProgram.h"
#include "flows/Player.h"
#include "panel/PanelPlace.h"
#include "start/Places.h"

namespace vantor::bar {
namespace {

using form::Key;
using test::StartedProgram;

TEST_CASE(
    "the bar stands as it was left, if that is on the screen, and comes along when that or the room on it shrinks") {
  const struct {
    std::wstring Saved, Place, Smaller;
  } rows[] = {{L"Left=30000 Top=0", L"528 0", L"304 28"},
              {L"Left=-30000 Top=0", L"0 0", L"0 28"},
              {L"Left=0 Top=20000", L"0 692", L"0 524"},
              {L"Left=-60 Top=0", L"-4 0", L"0 28"},
              {L"Left=9000 Top=900", L"600 60", L"304 60"}};
  for (const auto& row : rows) {
    CHECK(flows::Play(L"given settings " + row.Saved + L"\ngiven screen 1024 768\nstart\nsee place " + row.Place +
                      L"\ngiven screen 1024 768\nsee place " + row.Place + L"\ngiven screen 800 600\nsee place " +
                      row.Smaller) == "");
  }
}

TEST_CASE("the open panel follows the bar, and closes when the bar is minimised in any way") {
  StartedProgram program;
  frmMain& bar = program.Main;
  form::Headless& desktop = program.Desktop;
  for (const auto& [key, form] : {std::pair<Key, form::Form*>(Key::F2, &program.Program.frmBrowse),
                                  std::pair<Key, form::Form*>(Key::F7, &program.Choose)}) {
    desktop.Press(key);
    const auto stands = [&, panel = form] {
      const form::Rect place = panel->Bounds();
      program.Program.Panels.PlaceByBar(*panel);
      return panel->Bounds() == place;
    };
    desktop.DragBy(bar, 3000, 1500);
    CHECK((stands() && form->Bounds().Top >= 1500));
    // A window manager may tell of a drag's end after the drag.
    bar.InputMoved(-900, 900);
    CHECK((stands() && form->Bounds().Left == 0 && bar.Bounds().Top == 900));
    bar.TextMain.SetText(L"left");
    bar.InputWindowState(form::WindowState::Minimized);
    CHECK_FALSE(form->Visible());
    desktop.Advance(5000);
    CHECK((!bar.TopMost() && bar.TimerWatchOnTop.Enabled() && program.Program.CommandState.OpenPanelIndex == -1));
    bar.InputWindowState(form::WindowState::Normal);
    desktop.Advance(2000);
    CHECK((bar.TopMost() && bar.TextMain.HasFocus() && bar.TextMain.Text() == L"left"));
    desktop.Click(bar.CommandWeb);
    CHECK(bar.CommandWeb.State() ==
          (form == &program.Choose ? form::ButtonState::Folded : form::ButtonState::Unfolded));
  }
  // The list of what fits stands under the line.
  program.Add(list::LaunchGroup::Prog, L"one", L"x");
  program.Add(list::LaunchGroup::Prog, L"once", L"x");
  program.Type(L"p-o");
  const form::Rect list = program.Program.frmMatches.Bounds();
  CHECK((list.Left == bar.TextMain.Left() && list.Top == bar.Bounds().Bottom()));
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

TEST_CASE("a panel stands by the bar, and on the screen") {
  const form::Rect area{0, 0, 12000, 8600};
  const struct {
    form::Rect Bar, Place;
  } cases[] = {
      {{0, 0, 6000, 480}, {0, 480, 5040, 7700}},
      {{9000, 0, 6000, 480}, {6960, 480, 5040, 7700}},     // off the right edge
      {{300, 8100, 6000, 480}, {300, 400, 5040, 7700}},    // above
      {{300, 4000, 6000, 480}, {6300, 900, 5040, 7700}},   // no room but beside
      {{5900, 4000, 6000, 480}, {860, 900, 5040, 7700}},   // on the other side
      {{3000, 4000, 6000, 480}, {6960, 900, 5040, 7700}},  // over the least of it
      {{0, 0, 6000, 480}, {6000, 0, 5040, 9000}},          // taller than the screen: from its top
  };
  for (const auto& c : cases) CHECK(panel::PlacePanel(c.Bar, {c.Place.Width, c.Place.Height}, area) == c.Place);
}

TEST_CASE("no panel is larger than the work area; where there is room it has its own size") {
  const struct {
    int Width, Height;  // of the work area, in pixels
    double DotsPerInch;
    bool Whole;
  } screens[] = {{800, 570, 96, true},    {738, 600, 96, false},  {1366, 728, 144, false},
                 {1920, 1040, 192, true}, {800, 570, 216, false}, {400, 560, 96, false}};
  for (const auto& screen : screens) {
    CAPTURE(screen.DotsPerInch);
    test::StartedProgram program;
    program.Add(list::LaunchGroup::Web, L"a", L"b");
    const double twips = 1440 / screen.DotsPerInch;
    const form::Rect area{0, 0, int(screen.Width * twips), int(screen.Height * twips)};
    program.Desktop.Desktop = {area, area, twips, twips};
    program.Main.InputScreensChanged();
    bool whole = true;
    for (const Key key : {Key::F2, Key::F3, Key::F4, Key::F6, Key::F7, Key::F8}) {
      program.Desktop.Press(key);
      const form::Form& panel = *program.Desktop.ActiveForm();
      CHECK((panel.Bounds().Right() <= area.Width && panel.Bounds().Bottom() <= area.Height));
      whole = whole && panel.Scale() == 1;
    }
    CHECK(whole == screen.Whole);
    const double fits = area.Width / (program.Main.Web.FrameWeb.Right() + 480.0);
    CHECK(program.Main.Scale() == doctest::Approx(std::min(fits, 1.0)).epsilon(0.01));
    // A form that is not shown stays where it is.
    program.Desktop.Press(Key::F8);
    program.Choose.MoveTo(30000, 0);
    program.Choose.InputScreensChanged();
    CHECK(program.Choose.Bounds().Left == 30000);
  }
}

bool IsShown(const form::Control& control) {
  return control.Visible() && (control.Container() == nullptr || IsShown(*control.Container()));
}

void CheckFits(const form::Form& form) {
  std::vector<const form::Control*> shown;
  for (const form::Control* control : form.Controls()) {
    const form::Control* const in = control->Container();
    if (!IsShown(*control)) continue;
    CAPTURE(control->Name());
    const auto* const label = dynamic_cast<const form::Label*>(control);
    const form::Size least =
        label == nullptr ? control->LeastSize()
                         : form.Ui().MeasureText(label->Caption(), label->Bold(), label->Width());  // of several lines
    CHECK(control->Width() >= least.Width);
    CHECK(control->Height() >= least.Height);
    CHECK(control->Right() <= (in != nullptr ? in->Width() : form.Inside().Width));
    CHECK(control->Bottom() <= (in != nullptr ? in->Height() : form.Inside().Height));
    for (const form::Control* other : shown) {
      CAPTURE(other->Name());
      CHECK((other->Container() != in || control->Right() <= other->Left() || other->Right() <= control->Left() ||
             control->Bottom() <= other->Top() || other->Bottom() <= control->Top()));
    }
    shown.push_back(control);
  }
}

TEST_CASE("everything has its texts whole and apart in narrow and wide, low and high fonts") {
  // The letters at 9 points, on average, in twips: Tahoma, Arial (by Liberation Sans) and Verdana (by DejaVu Sans).
  for (const form::Size font : {form::Size{99, 210}, {105, 225}, {111, 240}}) {
    CAPTURE(font.Width);
    test::TestProgram program;
    program.Desktop.CharacterWidth = font.Width;
    program.Desktop.LineHeight = font.Height;
    program.Computer.Disk.AddFile(L"C:\\Orbel\\Draw\\Draw.exe");
    program.Computer.Disk.AddFile(L"C:\\Vantor\\VantorHelp.exe");  // of which there are lines too
    program.Start();
    program.Add(list::LaunchGroup::Web, L"a", L"b");
    for (const Key key : {Key::F2, Key::F3, Key::F4, Key::F5, Key::F6, Key::F7, Key::F8, Key::F8, Key::F1}) {
      program.Desktop.Press(key);
      program.Page.Web.Rename.DoClick();
      CheckFits(*program.Desktop.ActiveForm());
    }
    const form::Frame& banner = program.Main.Web.FrameAddedInfo;
    CHECK((banner.Width() >= banner.LeastSize().Width && banner.Height() >= banner.LeastSize().Height));
    program.Expect([](const message::frmMessage& dialog) { CheckFits(dialog); });
    program.Type(L"p=nosuchprogram\r");
  }
}

}  // namespace
}  // namespace vantor::bar
