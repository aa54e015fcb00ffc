#include <doctest/doctest.h>

#include <set>

#include "fake/Play.h"
#include "fake/StoredList.h"
#include "panel/PanelPlace.h"

namespace vantor::bar {
namespace {

using test::Concat;
using test::Play;
using test::World;

TEST_CASE(
    "the bar opens where it was left, if that is on the screen, and moves when the screen or the room on it shrinks") {
  const std::tuple<std::wstring, std::wstring, std::wstring> rows[] = {{L"Left=30000 Top=0", L"528 0", L"304 28"},
                                                                       {L"Left=-30000 Top=0", L"0 0", L"0 28"},
                                                                       {L"Left=0 Top=20000", L"0 692", L"0 524"},
                                                                       {L"Left=-60 Top=0", L"-4 0", L"0 28"},
                                                                       {L"Left=9000 Top=900", L"600 60", L"304 60"}};
  for (const auto& [saved, place, smaller] : rows) {
    Play(Concat({L"given settings ", saved, L"\ngiven screen 1024 768\nstart > see place ", place,
                 L"\ngiven screen 1024 768\nsee place ", place, L"\ngiven screen 800 600\nsee place ", smaller}));
  }
}

TEST_CASE("the open panel follows the bar, and closes when the bar is minimised in any way") {
  for (const auto* key : {L"F2", L"F7"}) {
    int looks = 0;
    Play(L"start\npress " + std::wstring(key) +
             L"\nlook\ndrag 5000 0\nlook\npress F1\nlook\nlook\nlook\nwait 5 > see not on top\nsee minimised\n"
             L"see hidden CommandAddCancel CommandListCancel\nrestore > see on top\nsee focus TextMain",
         [&](World& world) {
           start::Program& program = *world.Program;
           frmMain& bar = program.frmMain;
           if (++looks == 5) return bar.InputWindowState(form::WindowState::Minimized);
           // A window manager may tell of a drag's end after the drag.
           if (looks == 4) bar.InputMoved(-900, 900);
           form::Form* panel = &program.frmChoose;
           if (program.frmBrowse.Visible()) panel = &program.frmBrowse;
           const form::Rect place = panel->Bounds();
           program.Panels.PlaceByBar(*panel);  // changes nothing: it is where it belongs
           CHECK((panel->Bounds() == place && (looks != 4 || place.Left == 0)));
           CHECK(bar.CommandWeb.State() == (looks <= 2 ? form::ButtonState::Folded : form::ButtonState::Unfolded));
         });
  }
  // The list of what fits stands under the line.
  Play(L"given item ListWeb one > x | once > x\nstart\nline w-o\nlook", [](World& world) {
    const form::Rect& list = world.Program->frmMatches.Bounds();
    const frmMain& bar = world.Program->frmMain;
    CHECK((list.Left == bar.TextMain.Left() && list.Top == bar.Bounds().Bottom()));
  });
}

TEST_CASE("leaving before the list was read keeps the list") {
  test::StoredList list;
  list.Settings.WebUpper = 0;
  list.Disk.AddFile(list.Environment.Files.ListWeb, "\"x\",\"http://x\"\r\n");
  list.Program.frmMain.Show();
  list.Desktop.Click(list.Program.frmMain.CommandExit);
  CHECK(list.Disk.At(list.Environment.Files.Set).Bytes.starts_with("2\r\n-1\r\n-1\r\n-1\r\n0\r\n"));
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
  const std::pair<std::wstring, bool> screens[] = {{L"800 600", true},
                                                   {L"738 628", false},
                                                   {L"1366 756 144", false},
                                                   {L"1920 1080 192", true},
                                                   {L"800 600 216", false}};
  for (const auto& [screen, whole] : screens) {
    bool isWhole = true;
    Play(L"given item ListWeb a > b\nstart\ngiven screen " + screen +
             L"\npress F2\nlook\npress F3\nlook\npress F4\nlook\npress F6\nlook\npress F7\nlook\npress F8\nlook",
         [&](World& world) {
           const form::Form& panel = *world.Desktop->ActiveForm();
           const form::Rect& area = world.Desktop->Desktop.WorkArea;
           CHECK((panel.Bounds().Right() <= area.Right() && panel.Bounds().Bottom() <= area.Bottom()));
           isWhole = isWhole && panel.Scale() == 1;
           const frmMain& bar = world.Program->frmMain;
           const double fits = area.Width / (bar.Web.FrameWeb.Right() + 480.0);
           CHECK(bar.Scale() == doctest::Approx(std::min(fits, 1.0)).epsilon(0.01));
         });
    CHECK(isWhole == whole);
  }
}

void CheckFits(const World& world) {
  const form::Form& form = *world.Desktop->ActiveForm();
  std::vector<const form::Control*> shown;
  for (const form::Control* control : world.Shown()) {
    const form::Control* const in = control->Container();
    if (&control->OwnerForm() != &form) continue;
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

/// Goes once around the form by Tab, which reaches everything that can be used, and nothing else.
void CheckTabs(World& world) {
  const form::Form& form = *world.Desktop->ActiveForm();
  std::set<const form::Control*> usable;
  for (const form::Control* control : world.Shown()) {
    if (&control->OwnerForm() == &form && control->IsFocusable() && control->TabStop() && control->AcceptsInput())
      usable.insert(control);
  }
  std::set<const form::Control*> reached;
  while (reached.insert(form.ActiveControl()).second) world.Press(form::Key::Tab);
  CHECK(reached == usable);
}

TEST_CASE("every control shows its whole text, overlaps no other and is reached by Tab, in all kinds of fonts") {
  // The letters at 9 points, on average, in twips: Tahoma, Arial (by Liberation Sans) and Verdana (by DejaVu Sans).
  for (const form::Size font : {form::Size{99, 210}, {105, 225}, {111, 240}}) {
    CAPTURE(font.Width);
    Play(
        L"look\ngiven program C:\\Orbel\\Draw\\Draw.exe | VantorHelp.exe\ngiven item ListWeb a > b\nstart\npress F2\n"
        L"look\npress F3\nlook\npress F4\nclick CommandListWebRename\nlook\npress F5\nlook\npress F6\nlook\n"
        L"press F7\nlook\npress F8\nlook\npress F1\nlook\nenter p=nosuchprogram\nlook\npress Enter",
        [&](World& world) {
          world.Font = font;
          if (!world.Desktop) return;
          CheckFits(world);
          CheckTabs(world);
        });
  }
}

}  // namespace
}  // namespace vantor::bar
