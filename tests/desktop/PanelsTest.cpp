// desktop: --screen 800x600x24
// The panels on the smallest screen: opened, switched and closed each way, placed, and the list worked on.

#include <doctest/doctest.h>

#include "desktop/Program.h"
#include "desktop/Recorder.h"

namespace vantor::desktop {
namespace {

/// A folder with three programs, two of the same name but for a letter, and one web site.
class ListedFolder : public Folder {
 public:
  explicit ListedFolder(Settings settings = {}) {
    CopyProgram("recorder.exe", "recorder.exe");
    settings.ProgUpper = 2;
    settings.WebUpper = 0;
    WriteSettings(settings);
    const std::string target = Path("recorder.exe");
    WriteData("ListProg", ListBytes({{"Mail", target}, {"Maps", target}, {"Notes", target}}));
    WriteData("ListWeb", ListBytes({{"News", "http://news.example"}}));
  }
};

const struct {
  std::string Button;  // the bar's
  WORD Key;
  std::string Title;
  std::string Close;  // the panel's own button
} Rows[] = {
    {"Show | Hide Add To List", VK_F2, "Add To List", "Cancel"},
    {"Show | Hide Open", VK_F3, "Open", "Cancel"},
    {"Show | Hide Open From List", VK_F4, "List", "Cancel"},
    {"Show | Hide Preferences", VK_F6, "Options", "Cancel"},
    {"Show | Hide Help", VK_F7, "Help", "Hide"},
    {"Show | Hide Code List", VK_F8, "Code", "Hide"},
};

/// Whether a button of the bar, with the mouse elsewhere, has the blue face of one whose panel is open.
bool LooksOpen(HWND button) {
  input::Mouse({795, 595});
  const RECT place = window::Bounds(button);
  return window::ColorAt(place.left + 6, place.bottom - 6) == RGB(180, 200, 255);
}

/// A group of the list panel: its two boxes, and its buttons by their text.
struct Group {
  Group(const Panel& panel, const std::string& caption)
      : Frame(panel.Button(caption)),
        Name(window::OfClass(Frame, "ComboBox").at(0)),
        Path(window::OfClass(Frame, "ComboBox").at(1)) {}

  HWND Frame;
  HWND Name;
  HWND Path;

  [[nodiscard]] HWND NewName() const {
    const auto edits = window::OfClass(Frame, "Edit");
    return edits.empty() ? nullptr : edits[0];
  }
  [[nodiscard]] HWND Button(const std::string& text) const { return window::Button(Frame, text); }
  void Click(const std::string& text) const { input::Click(Button(text)); }
  [[nodiscard]] LRESULT Count() const { return SendMessageW(Name, CB_GETCOUNT, 0, 0); }
};

}  // namespace

TEST_CASE("each panel opens below the bar, shows it on its button, and closes each way") {
  const ListedFolder folder;
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    const auto& row = Rows[i];
    const auto& next = Rows[(i + 1) % std::size(Rows)];
    const Panel panel(program, row.Key, row.Title);
    const Panel other(program, next.Key, next.Title);
    HWND const button = program.Button(row.Button);
    for (const std::string way : {"button", "key", "Escape", "own button", "other button", "other key"}) {
      CAPTURE(row.Title + ", " + way);
      program.TypeLine("left over");
      if (way == "key") {
        panel.Open();
      } else {
        input::Click(button);
        panel.AwaitInput();
      }
      CHECK_BECOMES(LooksOpen(button), true);
      CHECK(window::Bounds(panel.Find()).top == window::Bounds(bar).bottom);
      CHECK_FALSE(window::IsTopMost(bar));
      if (way == "button") input::Click(button);
      if (way == "key") input::Press(row.Key);
      if (way == "Escape") input::Press(VK_ESCAPE);
      if (way == "own button") panel.Click(row.Close);
      if (way.starts_with("other")) {
        if (way == "other key") input::Press(next.Key);
        if (way == "other button") input::Click(program.Button(next.Button));
        other.AwaitInput();
        CHECK(panel.Find() == nullptr);
        input::Press(VK_ESCAPE);
      }
      CHECK_BECOMES(window::Focus(bar), program.TextMain());
      CHECK(panel.Find() == nullptr);
      CHECK_BECOMES(LooksOpen(button), false);
      CHECK(program.Line() == (way == "button" || way == "key" ? "left over" : ""));
    }
  }
  CHECK_BECOMES(window::IsTopMost(bar), true);
  // With a panel open F9 closes it first.
  const Panel help(program, VK_F7, "Help");
  help.Open();
  input::Press(VK_F9);
  CHECK_BECOMES(window::IsMinimised(bar), true);
  CHECK(help.Find() == nullptr);
}

TEST_CASE("near the screen's edges a panel opens where it fits, and never under the bar") {
  const RECT screen{0, 0, 800, 600};
  for (const auto& [left, top] : {std::pair(4200, 0), std::pair(0, 8400), std::pair(5000, 4000)}) {
    const ListedFolder folder({.Left = left, .Top = top});
    const Program program(folder);
    HWND const bar = program.AwaitBar();
    for (const auto& row : Rows) {
      CAPTURE(row.Title + std::to_string(top));
      const Panel panel(program, row.Key, row.Title);
      panel.Open();
      const RECT place = window::Bounds(panel.Find());
      const RECT barPlace = window::Bounds(bar);
      RECT both;
      UnionRect(&both, &place, &screen);
      CHECK(EqualRect(&both, &screen));
      if (IntersectRect(&both, &place, &barPlace)) CHECK(window::IsAbove(panel.Find(), bar));
    }
  }
}

TEST_CASE("items of the list are renamed, opened, and removed to the last; an empty list is refused") {
  const ListedFolder folder({.OptionMask = 6});
  const std::string target = folder.Path("recorder.exe");
  Recorder recorder(folder);
  const std::string longName(1000, 'x');
  {
    const Program program(folder);
    program.AwaitBar();
    const Panel panel(program, VK_F4, "List");
    panel.Open();
    const Group group(panel, "Program List :");
    CHECK(panel.Focus() == group.Name);
    CHECK(window::Text(group.Name) == "Mail");
    CHECK_FALSE(IsWindowEnabled(Group(panel, "File List :").Button("Open")));
    input::Press(VK_DOWN);
    CHECK_BECOMES(SendMessageW(group.Path, CB_GETCURSEL, 0, 0), 1);
    const struct {
      std::string Typed, Becomes;
    } rows[] = {{"mail", "Maps"}, {"News", "News"}, {"a \"b\", c", "a \"b\", c"}, {longName, longName}};
    for (const auto& row : rows) {
      CAPTURE(row.Typed);
      group.Click("Rename");
      CHECK_BECOMES(panel.Focus() == group.NewName() && group.NewName() != nullptr, true);
      CHECK_FALSE(IsWindowEnabled(group.Button("OK")));
      if (row.Typed.size() < 100) {
        input::Press(VK_RETURN);  // an empty name does nothing
        input::Type(row.Typed);
      } else {
        // A person would paste it. Sent, it would overtake a key that was pressed before.
        SetWindowTextA(group.NewName(), row.Typed.c_str());
      }
      CHECK_BECOMES(window::IsEnabled(group.Button("OK")), true);
      CHECK_BECOMES(window::Text(group.NewName()), row.Typed);
      input::Press(VK_RETURN);
      if (row.Typed != row.Becomes) {
        program.ExpectMessage("is listed name for another item");
        CHECK_BECOMES(panel.Focus(), group.NewName());
        CHECK(window::Text(group.NewName()).empty());
        group.Click("Cancel");
      }
      CHECK_BECOMES(group.NewName(), nullptr);
      CHECK_BECOMES(panel.Focus(), group.Button("Rename"));
      CHECK(window::Text(group.Name) == row.Becomes);
    }
    group.Click("Open");
    CHECK(recorder.Next() == '"' + target + '"');
    CHECK(panel.Find() == nullptr);
    program.Exit();
  }
  CHECK(folder.Data("ListProg") == ListBytes({{"Mail", target}, {longName, target}, {"Notes", target}}));

  const Program program(folder);
  program.AwaitBar();
  const Panel panel(program, VK_F4, "List");
  panel.Open();
  for (const Group& group : {Group(panel, "Program List :"), Group(panel, "Web URL List :")}) {
    input::Click(group.Name);  // drops the list down
    input::Press(VK_END);
    input::Press(VK_RETURN);
    for (LRESULT count = group.Count(); count-- > 0;) {
      group.Click("Remove From List");
      CHECK_BECOMES(group.Count(), count);
      CHECK(SendMessageW(group.Path, CB_GETCURSEL, 0, 0) == (count > 0 ? 0 : -1));
    }
    for (const char* button : {"Open", "Rename", "Remove From List"})
      CHECK_FALSE(IsWindowEnabled(group.Button(button)));
  }
  panel.Click("Cancel");
  program.AwaitBar();
  input::Press(VK_F4);
  program.ExpectMessage("Launch List is empty.");
  program.AwaitBar();
  CHECK(panel.Find() == nullptr);

  // Adding begins anew.
  input::Click(window::OfClass(program.Bar(), "Edit").at(1));
  input::Type("http://one");
  input::Press(VK_TAB);
  input::Type("One");
  input::Press(VK_RETURN);
  CHECK_BECOMES(window::Focus(program.Bar()), program.TextMain());
  panel.Open();
  const Group web(panel, "Web URL List :");
  CHECK(panel.Focus() == web.Name);
  CHECK(window::Text(web.Path) == "http://one");
}

}  // namespace vantor::desktop
