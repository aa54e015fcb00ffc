// desktop: --screen 800x600x24
// The panels on the smallest screen: opened, switched and closed each way, placed; and what is done in the list, the
// preferences and the panel of the maker's other programs.

#include <doctest/doctest.h>
#include <windows.h>
// Needs the one before it.
#include <commctrl.h>

#include "desktop/System.h"

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

/// Those that each bar has.
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

const char* const Captions[] = {"Start With Windows", "Always On Top", "Show Add URL Box At Start"};

/// The boxes of the panel as a text: x for each that is ticked.
std::string Boxes(const Panel& preferences) {
  std::string boxes;
  for (const char* caption : Captions) {
    boxes += SendMessageW(preferences.Button(caption), BM_GETCHECK, 0, 0) == BST_CHECKED ? 'x' : '-';
  }
  return boxes;
}

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
  const struct { int Left, Top; } places[] = {{4200, 0}, {0, 8400}, {5000, 4000}};
  for (const auto& at : places) {
    const ListedFolder folder({.Left = at.Left, .Top = at.Top});
    const Program program(folder);
    const RECT bar = window::Bounds(program.AwaitBar());
    for (const auto& row : Rows) {
      CAPTURE(row.Title + std::to_string(at.Top));
      const Panel panel(program, row.Key, row.Title);
      panel.Open();
      const RECT place = window::Bounds(panel.Find());
      RECT both;
      UnionRect(&both, &place, &screen);
      CHECK(EqualRect(&both, &screen));
      if (IntersectRect(&both, &place, &bar)) CHECK(window::IsAbove(panel.Find(), program.Bar()));
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
}

TEST_CASE("each option takes effect when it should, is saved, and is undone") {
  RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, RunKey, RunValue);
  const Folder folder;
  folder.WriteSettings({});
  // What is ticked before and after, and what the files and the registry then hold.
  const struct {
    std::string Before, After;
    int Mask;
  } rows[] = {{"-x-", "x-x", 5}, {"x-x", "---", 0}, {"---", "-xx", 6}, {"-xx", "-x-", 2}};
  for (const auto& row : rows) {
    CAPTURE(row.After);
    const Program program(folder);
    HWND const bar = program.AwaitBar();
    const auto webBoxShown = [&] { return window::OfClass(bar, "Edit").size() == 3; };
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    const Panel preferences(program, VK_F6, "Options");
    for (const std::string answer : {"Cancel", "OK"}) {  // cancelled, nothing has changed
      CAPTURE(answer);
      preferences.Open();
      CHECK(Boxes(preferences) == row.Before);
      // The first box has the focus; ticked and cleared again, it leaves nothing to confirm.
      for (const bool changed : {true, false}) {
        input::Press(VK_SPACE);
        CHECK_BECOMES(window::IsEnabled(preferences.Button("OK")), changed);
      }
      for (std::size_t i = 0; i < std::size(Captions); ++i) {
        if (row.Before[i] != row.After[i]) preferences.Click(Captions[i]);
      }
      CHECK_BECOMES(Boxes(preferences), row.After);
      preferences.Click(answer);
      CHECK_BECOMES(window::Focus(bar), program.TextMain());
      const std::string& now = answer == "OK" ? row.After : row.Before;
      CHECK(RegistryText(HKEY_LOCAL_MACHINE, RunKey, RunValue) ==
            (now[0] == 'x' ? folder.Path("Vantor.exe") : "(none)"));
    }
    CHECK(webBoxShown() == (row.Before[2] == 'x'));
    if (row.After[1] == 'x') {
      CHECK_BECOMES(window::IsTopMost(bar), true);
    } else {
      CHECK_FALSE(Eventually([&] { return window::IsTopMost(bar); }, 1500));  // more than one beat of the timer
    }
    program.Exit();
    CHECK(folder.Data("Set") == folder.Saved({.OptionMask = row.Mask}));
  }
}

TEST_CASE("the desktop shortcut starts the program, in its folder, by Ctrl+Shift+L") {
  const std::string file = SystemFolder(CSIDL_DESKTOPDIRECTORY) + "\\Vantor.lnk";
  DeleteFileW(Wide(file).c_str());
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  program.AwaitBar();
  const Panel preferences(program, VK_F6, "Options");
  preferences.Open();
  for (int time = 0; time < 2; ++time) {  // the second replaces the first
    preferences.Click("Create Desktop Shortcut");
    program.ExpectMessage("A shortcut for Vantor has been placed on your Desktop.");
    preferences.AwaitInput();
    const std::string link = BytesOf(file);
    const std::string path = folder.Path("Vantor.exe");
    for (const std::string& part : {path, Utf16(path), Utf16(folder.Path() + "\\"), Utf16("Vantor")})
      CHECK(link.find(part) != std::string::npos);
    CHECK(link.substr(60, 4) == std::string("\1\0\0\0", 4));  // a window of the usual size
    CHECK(link.substr(64, 2) == "L\3");                       // Ctrl+Shift+L
  }
  DeleteFileW(Wide(file).c_str());
  // A folder in the file's place: success is told only when it is there.
  std::filesystem::create_directory(Wide(file));
  preferences.Click("Create Desktop Shortcut");
  input::Press(VK_ESCAPE);
  program.AwaitBar();
  CHECK(program.Message() == nullptr);
  std::filesystem::remove(Wide(file));
}

TEST_CASE("companions are listed, completed and started; one that vanished is told; without any there is no button") {
  const Folder outer;
  const Folder folder(outer.Path("Orbel\\"));
  const std::string names[] = {"Draw it", "\u00C9cran"};
  std::string paths[2];
  for (int i = 0; i < 2; ++i) {
    const std::string name = "Orbel\\" + names[i] + "\\" + names[i] + ".exe";
    outer.CopyProgram("recorder.exe", name);
    paths[i] = outer.Path(name);
  }
  const std::string help = folder.Path("VantorHelp.exe");
  folder.CopyProgram("recorder.exe", "VantorHelp.exe");
  folder.WriteSettings({});
  Recorder recorder(folder);
  const auto started = [&recorder](const std::string& path) { CHECK(recorder.Next() == '"' + path + '"'); };
  const std::string button = "Show | Hide Run (Orbel's Program)";
  {
    const Program program(folder);
    program.AwaitBar();
    CHECK(program.Button(button) != nullptr);
    const Panel panel(program, VK_F5, "Orbel's Programs");
    panel.Open();
    HWND list = window::OfClass(panel.Find(), "ListBox").at(0);
    CHECK(SendMessageW(list, LB_GETCOUNT, 0, 0) == 3);
    panel.Close();
    panel.Open();
    input::Press(VK_DOWN);
    CHECK_BECOMES(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
    input::Press(VK_RETURN);
    started(paths[1]);
    program.AwaitBar();
    panel.Open();
    CHECK(SendMessageW(list, LB_GETCURSEL, 0, 0) == 1);
    input::Press(VK_DOWN);
    panel.Click("Open");
    started(help);

    program.AwaitBar();
    program.TypeLine("r-d");
    CHECK_BECOMES(program.LineWithSelection(), "r-D[raw it]");
    input::Press(VK_RETURN);
    started(paths[0]);
    CHECK_BECOMES(program.Line(), "");
    program.Enter("r-\u00E9");
    started(paths[1]);

    // What was started has to end before its file can go.
    for (const std::string& path : paths) {
      Await("the end of " + path, [&] { return DeleteFileW(Wide(path).c_str()) != FALSE; });
    }
    program.Enter("r-draw");
    program.ExpectMessage("There was some error. Could not run the program.\n");
    program.AwaitBar();
    CHECK(program.Line() == "r-Draw it");
    program.Exit();
  }
  Await("the end of the help", [&] { return DeleteFileW(Wide(help).c_str()) != FALSE; });
  const Program program(folder);
  program.AwaitBar();
  CHECK(program.Button(button) == nullptr);
  input::Press(VK_F5);
  program.Enter("r-d");
  input::Type("x");
  CHECK_BECOMES(program.Line(), "r-dx");
  CHECK(Panel(program, VK_F5, "Orbel's Programs").Find() == nullptr);
  CHECK(recorder.Lines().size() == 4);
}

}  // namespace vantor::desktop
