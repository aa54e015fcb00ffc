#include <doctest/doctest.h>

#include "bar/TestBar.h"

using namespace vantor;
using form::Key;
using list::LaunchGroup;
using test::TestBar;

namespace {

class RecordingPanel : public bar::Panel {
 public:
  bool Shown = false;
  message::MessageKey Key;

  message::MessageKey Refusal() override { return Key; }
  void Open() override { Shown = true; }
  void Close() override { Shown = false; }
};

/// The lines of a layout: what each control of the bar reads as, from left to right.
std::vector<std::wstring> LeftToRight(const bar::frmMain& main) {
  std::vector<const form::Control*> controls;
  for (const form::Control* control : main.Controls()) {
    if (control->Container() == &main.FrameButtons && control->Visible()) controls.push_back(control);
  }
  std::sort(controls.begin(), controls.end(), [](auto* a, auto* b) { return a->Left() < b->Left(); });
  std::vector<std::wstring> names;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    names.push_back(controls[i]->Name());
    if (i > 0) CHECK(controls[i]->Left() == controls[i - 1]->Right() + 60);
  }
  return names;
}

}  // namespace

TEST_CASE("the bar stands as it was left, with the product's name selected") {
  TestBar bar;
  bar.Settings.Left = 900;
  bar.Settings.Top = 450;
  bar.Show();
  const form::Rect& place = bar.Main.Bounds();
  CHECK(place.Left == 900);
  CHECK(place.Top == 450);
  CHECK(place.Height == bar.Main.CommandExit.Height());
  CHECK(place.Width == bar.Main.CommandExit.Right());
  CHECK(bar.Main.TextMain.Text() == L"Vantor");
  CHECK(bar.Main.TextMain.SelLength() == 6);
  bar.Desktop.Type(L"p");
  CHECK(bar.Main.TextMain.Text() == L"p");
}

TEST_CASE("buttons without a panel are not there, and leave no gap") {
  TestBar bar;
  RecordingPanel panel;
  bar.Main.SetPanel(0, &panel);
  bar.Main.SetPanel(5, &panel);
  bar.Show();
  CHECK(LeftToRight(bar.Main) == std::vector<std::wstring>{L"ImageLauncher", L"CommandWeb", L"CommandMenu(0)",
                                                           L"TextMain", L"CommandMenu(5)", L"CommandMin",
                                                           L"CommandExit"});
  for (std::size_t i = 0; i < 7; ++i) bar.Main.SetPanel(i, &panel);
  CHECK(LeftToRight(bar.Main).size() == 12);
  CHECK(bar.Main.Bounds().Width == bar.Main.CommandExit.Right());
  // Unfolded it still leaves its margin free on the smallest screen.
  CHECK(bar.Main.Web.FrameWeb.Right() + 480 <= 12000);
  CHECK(bar.Main.CommandMenu[3].AccessibleName() == L"Show | Hide Run (Orbel's Program)");
  // Tab walks from left to right.
  for (const wchar_t* name : {L"CommandMenu(4)", L"CommandMenu(5)", L"CommandMenu(6)", L"CommandMin", L"CommandExit",
                              L"CommandWeb", L"CommandMenu(0)"}) {
    bar.Desktop.Press(Key::Tab);
    CHECK(bar.Main.ActiveControl()->Name() == name);
  }
}

TEST_CASE("dragging ends within the screen, and leaves room for what unfolds") {
  TestBar bar;
  bar.Show();
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

TEST_CASE("a saved place that no screen shows is brought back") {
  struct Row {
    int Left, Top;
    bool Moves;
  };
  for (const Row row :
       {Row{30000, 0, true}, Row{-30000, 0, true}, Row{0, 20000, true}, Row{-60, 0, false}, Row{14000, 0, false}}) {
    TestBar bar;
    bar.Settings.Left = static_cast<std::int16_t>(row.Left);
    bar.Settings.Top = static_cast<std::int16_t>(row.Top);
    bar.Show();
    const form::Rect& place = bar.Main.Bounds();
    CHECK((place.Left != row.Left || place.Top != row.Top) == row.Moves);
    CHECK(place.Left < bar.Desktop.Desktop.Bounds.Width);
    CHECK(place.Top < bar.Desktop.Desktop.Bounds.Height);
  }
}

TEST_CASE("the bar climbs on top each second, except while a message or a panel is open or the user does not want it") {
  TestBar bar;
  RecordingPanel panel;
  bar.Main.SetPanel(2, &panel);
  bar.Show();
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Desktop.WhenModal([&](form::Form& dialog) {
    CHECK(!bar.Main.TopMost());
    bar.Desktop.Advance(5000);
    CHECK(!bar.Main.TopMost());
    dialog.InputClose();
  });
  bar.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Desktop.Press(Key::F4);
  bar.ExpectMessage();
  bar.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(5000);
  CHECK(!bar.Main.TopMost());
  bar.Desktop.Press(Key::F4);
  bar.Desktop.Advance(1000);
  CHECK(bar.Main.TopMost());
  bar.Options.AlwaysOnTop = 0;
  bar.ExpectMessage();
  bar.Messages.ShowList(L"MessageEmptyList");
  bar.Desktop.Advance(5000);
  CHECK(!bar.Main.TopMost());
}

TEST_CASE("an idle line shows the product's name again, ready to be typed over") {
  TestBar bar;
  bar.Show();
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

TEST_CASE("minimising closes the panel and leaves the top; restoring takes the focus back to the line") {
  TestBar bar;
  RecordingPanel panel;
  bar.Main.SetPanel(6, &panel);
  bar.Show();
  bar.Desktop.Advance(1000);
  bar.Desktop.Press(Key::F8);
  CHECK(panel.Shown);
  CHECK(bar.Main.CommandMenu[6].Caption() == L"||");
  bar.Desktop.Press(Key::F9);
  CHECK(!panel.Shown);
  CHECK(bar.Main.CommandMenu[6].Caption() == L"C");
  CHECK(bar.Main.WindowState() == form::WindowState::Minimized);
  bar.Desktop.Advance(10000);
  CHECK(!bar.Main.TopMost());
  bar.Main.CommandWeb.SetFocus();
  bar.Main.InputWindowState(form::WindowState::Normal);
  bar.Desktop.Advance(2000);
  CHECK(bar.Main.TextMain.HasFocus());
  CHECK(bar.Main.TopMost());
  // A panel that opens sooner than the restore is noticed stays in front.
  bar.Desktop.Press(Key::F9);
  bar.Main.InputWindowState(form::WindowState::Normal);
  bar.Desktop.Press(Key::F8);
  bar.Desktop.Advance(10000);
  CHECK(!bar.Main.TopMost());
}

TEST_CASE("one panel at a time is open, and one that refuses leaves none") {
  TestBar bar;
  RecordingPanel list, help;
  bar.Main.SetPanel(2, &list);
  bar.Main.SetPanel(5, &help);
  bar.Show();
  bar.Desktop.Press(Key::F4);
  CHECK(bar.State.OpenPanelIndex == 2);
  bar.Desktop.Press(Key::F7);
  CHECK(bar.State.OpenPanelIndex == 5);
  CHECK(!list.Shown);
  CHECK(help.Shown);
  bar.Desktop.Press(Key::F5);  // hidden
  CHECK(bar.State.OpenPanelIndex == 5);
  list.Key = L"MessageEmptyList";
  bar.ExpectMessage();
  bar.Desktop.Press(Key::F4);
  CHECK(bar.Shown.size() == 1);
  CHECK(bar.State.OpenPanelIndex == -1);
  CHECK(!help.Shown);
  CHECK(!list.Shown);
  CHECK(bar.Main.CommandMenu[2].Caption() == L"L");
  CHECK(bar.Main.CommandMenu[5].Caption() == L"?");
  CHECK(bar.Main.TimerOnTop.Enabled());
  bar.Desktop.Press(Key::F7);
  bar.Type(L"x\x1b");
  CHECK(!help.Shown);
  CHECK(bar.Main.TextMain.Text().empty());
}

TEST_CASE("leaving saves the list, the settings and the bar's place, and ends the program") {
  TestBar bar;
  bar.Show();
  bar.Desktop.DragBy(bar.Main, 600, 300);
  bar.Add(LaunchGroup::Web, L"x", L"http://x");
  bar.Desktop.Press(Key::F9);
  bar.Main.InputClose();
  CHECK(bar.Desktop.Ended());
  CHECK(bar.Fakes.Disk.Bytes(bar.Environment.Files.Set) ==
        "2\r\n-1\r\n-1\r\n-1\r\n0\r\n600\r\n300\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n");
  CHECK(bar.Fakes.Disk.Bytes(bar.Environment.Files.ListWeb) == "\"x\",\"http://x\"\r\n");
}

TEST_CASE("leaving before the list was read keeps the list") {
  TestBar bar;
  bar.Settings.WebUpper = 0;
  bar.Fakes.Disk.AddFile(bar.Environment.Files.ListWeb, "\"x\",\"http://x\"\r\n");
  bar.Main.Show();
  bar.Desktop.Click(bar.Main.CommandExit);
  CHECK(bar.Fakes.Disk.Bytes(bar.Environment.Files.Set).starts_with("2\r\n-1\r\n-1\r\n-1\r\n0\r\n"));
}
