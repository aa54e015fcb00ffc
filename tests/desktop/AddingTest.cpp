// desktop: --drive e:=floppy
// Adding by browsing and by pointing at a window, and what may be added to a list on a removable drive.

#include <doctest/doctest.h>

#include <algorithm>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

/// The box by which items are added, of a program that runs.
class AddBox {
 public:
  explicit AddBox(const Program& program) : program_(program) {}

  void Open() {
    input::Press(VK_F2);
    Await("the add box", [this] { return Find() != nullptr && window::HasInput(Find()); });
  }
  [[nodiscard]] HWND Find() const {
    DWORD process = 0;
    GetWindowThreadProcessId(program_.Bar(), &process);
    const auto windows = window::OfProcess(process);
    const auto found =
        std::find_if(windows.begin(), windows.end(), [](HWND one) { return window::Text(one) == "Add To List"; });
    return found == windows.end() ? nullptr : *found;
  }
  [[nodiscard]] HWND Button(const std::string& text) const { return window::Control(Find(), "Button", text); }
  void Click(const std::string& button) const { input::Click(window::Middle(Button(button))); }

  /// The path, and the name that is typed.
  [[nodiscard]] HWND Edit(std::size_t index) const {
    const auto edits = OfClass("Edit");
    return index < edits.size() ? edits[index] : nullptr;
  }
  [[nodiscard]] std::string Path() const { return window::Text(Edit(0)); }
  void AwaitNameFocus() const {
    Await("the focus on the name", [this] {
      GUITHREADINFO thread = {};
      thread.cbSize = sizeof thread;
      return GetGUIThreadInfo(GetWindowThreadProcessId(Find(), nullptr), &thread) != FALSE &&
             thread.hwndFocus == Edit(1);
    });
  }
  /// Clicks on an entry of the list of files.
  void Pick(const std::string& file) const {
    const auto lists = OfClass("ListBox");
    REQUIRE(lists.size() == 2);
    LRESULT index = LB_ERR;
    Await("the file in the list", [&] {
      index = SendMessageW(lists[1], LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                           reinterpret_cast<LPARAM>(Wide(file).c_str()));
      return index != LB_ERR;
    });
    RECT item = {};
    SendMessageW(lists[1], LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    ClientToScreen(lists[1], &middle);
    input::Click(middle);
  }
  /// Types a name for what is chosen, and adds it by Enter.
  void Add(const std::string& name) const {
    AwaitNameFocus();
    input::Type(name);
    CHECK_BECOMES(window::Text(Edit(1)), name);
    input::Press(VK_RETURN);
  }

 private:
  /// From left to right, and from top to bottom.
  [[nodiscard]] std::vector<HWND> OfClass(const std::string& name) const {
    auto controls = window::Controls(Find());
    std::erase_if(controls, [&](HWND control) { return window::ClassName(control) != name; });
    std::sort(controls.begin(), controls.end(), [](HWND a, HWND b) {
      const RECT left = window::Bounds(a);
      const RECT right = window::Bounds(b);
      return left.left != right.left ? left.left < right.left : left.top < right.top;
    });
    return controls;
  }

  const Program& program_;
};

}  // namespace

TEST_CASE("what is added by browsing is completed at once, and listed once") {
  const Folder folder;
  folder.Write("Tools\\tool.EXE", "");
  folder.Write("Tools\\my notes.txt", "");
  const std::string tools = folder.Path("Tools");
  folder.WriteSettings({.Folder = tools});
  Program program(folder);
  program.AwaitBar();
  AddBox box(program);
  box.Open();
  const struct {
    std::string Kind, File, Target, Name, Banner, Code;
  } rows[] = {{"File", "tool.EXE", tools + "\\tool.EXE", "Tool, mine", "Program", "p-"},
              {"File", "my notes.txt", tools + "\\my notes.txt", "Notes", "File", "f-"},
              {"Folder", "", tools, "Tools", "Folder", "d-"}};
  for (const auto& row : rows) {
    box.Click(row.Kind);
    if (!row.File.empty()) box.Pick(row.File);
    CHECK_BECOMES(box.Path(), row.Target);
    box.Add(row.Name);
    Await("the banner", [&] { return box.Button(row.Banner + " Added To List : Click To Hide") != nullptr; });
    CHECK_BECOMES(program.Line(), "");
    program.TypeLine(row.Code + row.Name.substr(0, 1));
    CHECK_BECOMES(program.Line(), row.Code + row.Name);
  }
  box.Click("File");
  box.Pick("my notes.txt");
  box.Add("Again");
  program.AwaitMessage();
  CHECK(program.MessageText().find("Selected item has already been included in the List.") != std::string::npos);
  program.AnswerMessage();
  CHECK_BECOMES(window::Text(box.Edit(1)), "Again");
  box.Click("Cancel");
  program.AwaitBar();
  program.Exit();
  CHECK(folder.Read("Vantor\\ListProg.Orbel") == ListBytes({{"Tool, mine", tools + "\\tool.EXE"}}));
  CHECK(folder.Read("Vantor\\ListFile.Orbel") == ListBytes({{"Notes", tools + "\\my notes.txt"}}));
  CHECK(folder.Read("Vantor\\ListFold.Orbel") == ListBytes({{"Tools", tools}}));
  CHECK(folder.Read("Vantor\\Set.Orbel") ==
        folder.Saved({.FileUpper = 0, .FoldUpper = 0, .ProgUpper = 0, .Folder = tools}));
}

TEST_CASE("the finder takes the program behind a window, unless Escape breaks it off") {
  const Folder folder;
  folder.WriteSettings({});
  Program program(folder);
  program.AwaitBar();
  AddBox box(program);
  box.Open();
  // A window of this test's own is the other program.
  const HWND target = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"BUTTON", L"", WS_POPUP, 700, 100, 200, 200,
                                      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ShowWindow(target, SW_SHOWNOACTIVATE);
  const auto marked = [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; };
  const POINT button = window::Middle(box.Button("Find Program Path"));
  for (const bool escape : {true, false}) {
    input::Hold(button);
    input::Move({790, 190});
    input::Move({800, 200});
    Await("the mark", marked);
    if (escape) input::Press(VK_ESCAPE);
    if (escape) Await("the mark to go", [&] { return !marked(); });
    input::LetGo({800, 200});
    if (escape) CHECK(box.Path().empty());
  }
  wchar_t own[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  CHECK_BECOMES(box.Path(), Narrow(own));
  CHECK_FALSE(marked());
  box.AwaitNameFocus();
  DestroyWindow(target);
}

TEST_CASE("on a removable drive, what lies elsewhere is added once the computer is remembered") {
  SKIP_UNLESS(UnderWine() && GetDriveTypeW(L"E:\\") == DRIVE_REMOVABLE, "a test desktop with a removable drive");
  const Folder folder("E:\\");
  folder.Write("Tools\\tool.exe", "");
  folder.Write("Vantor\\MediaSet.Orbel", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Anna\"\r\n");
  folder.Write("Vantor\\Set.Orbel", Settings().Bytes());
  Program program(folder);
  program.AwaitBar();
  AddBox box(program);
  box.Open();
  box.Click("Folder");
  CHECK_BECOMES(box.Path(), folder.Path());
  box.Add("Own");
  Await("the banner", [&] { return box.Button("Folder Added") != nullptr; });

  input::Click(window::Middle(window::Control(box.Find(), "ComboBox")));
  input::Type("c");
  input::Press(VK_RETURN);
  CHECK_BECOMES(box.Path(), "C:\\");
  input::Click(window::Middle(box.Edit(1)));
  box.Add("Disk");
  program.AwaitMessage();
  CHECK(program.MessageText().find("The selected machine need to be identified first.") != std::string::npos);
  program.AnswerMessage();

  input::Press(VK_F6);
  Await("the preferences", [&] { return box.Find() == nullptr; });
  DWORD process = 0;
  GetWindowThreadProcessId(program.Bar(), &process);
  const auto remember = [&] {
    for (HWND panel : window::OfProcess(process)) {
      if (HWND button = window::Control(panel, "Button", "Remember My Computer")) return button;
    }
    return HWND{};
  };
  Await("the button, enabled", [&] { return remember() != nullptr && IsWindowEnabled(remember()); });
  input::Click(window::Middle(remember()));
  Await("the button, disabled", [&] { return !IsWindowEnabled(remember()); });
  input::Press(VK_F2);
  Await("the add box", [&] { return box.Find() != nullptr && window::HasInput(box.Find()); });
  CHECK_BECOMES(window::Text(box.Edit(1)), "Disk");
  input::Click(window::Middle(box.Edit(1)));
  box.AwaitNameFocus();
  input::Press(VK_RETURN);
  Await("the banner", [&] { return box.Button("Folder Added") != nullptr; });
  program.AwaitBar();
  program.Exit();
  CHECK(folder.Read("Vantor\\ListFold.Orbel") == ListBytes({{"Own", '#' + folder.Path().substr(1)}}));
  CHECK(folder.Read("Vantor\\MachineFold.Orbel") == ListBytes({{"Disk", "C:\\"}}));
  CHECK(folder.Read("Vantor\\Machine.Orbel").starts_with("3\r\n\""));
  CHECK(folder.Read("Vantor\\Set.Orbel") == Settings{.FoldUpper = 0, .MachineFoldUpper = 0}.Bytes());
}

}  // namespace vantor::desktop
