// desktop: --drive d:=hd --drive e:=floppy --drive n:=network --drive q:=cdrom --drive r:=ramdisk
// Adding by browsing and by pointing at a window, while the program runs from a fixed disk.

#include <doctest/doctest.h>

#include "desktop/AddBox.h"
#include "desktop/Recorder.h"

namespace vantor::desktop {
namespace {

const std::string PathListed =
    "Selected item has already been included in the List. There is no need to add it again.\n";
const std::string NameListed =
    "The name you typed is listed name for another item in it's group.\r\n\r\nTwo different items in the same group "
    "(Groups : Program, File, Folder and Web Site) can't be listed with same name. Type a different name please.\n";
const std::string NotFixed =
    "You can add Program, File and Folder to Launch List only if those are in a fixed Hard Disk. This one, that you "
    "are trying to add, doesn't seems to be on a fixed Hard Disk.\n";
const std::string NotReady = "The Drive you are trying to select is not ready.\n";

/// A program that runs, with its add box open at a folder.
struct Adding {
  explicit Adding(const Folder& folder) : Running((folder.WriteSettings({}), folder)) {
    Running.AwaitBar();
    Box.Open();
  }

  Program Running;
  AddBox Box{Running};
};

/// Takes the medium out of a drive of the test desktop.
void PullOut(char letter) {
  const std::string medium = std::string(R"(Z:\prefix\drives\)") + static_cast<char>(letter | ' ');
  std::filesystem::rename(medium, medium + ".out");
}

}  // namespace

TEST_CASE("what is added by browsing goes to the group of its extension, once, and is completed at once") {
  const Folder folder;
  folder.Write("a.txt");
  folder.Write("Tools\\tool.EXE");
  folder.Write("Tools\\\u0416, it's a note.txt");
  const std::string tools = folder.Path("Tools");
  const std::string note = tools + "\\\u0416, it's a note.txt";
  const Adding adding(folder);
  const AddBox& box = adding.Box;
  box.Click("File");
  box.Pick("a.txt");
  box.Add("First");
  box.AwaitBanner("File");
  box.Enter("Tools");
  const struct {
    std::string Kind, File, Target, Name, Banner, Code;
  } rows[] = {{"File", "tool.EXE", tools + "\\tool.EXE", "Tool, mine", "Program", "p-"},
              {"File", "\u0416, it's a note.txt", note, "Notes", "File", "f-"},
              {"Folder", "", tools, "Notes", "Folder", "d-"}};  // a name of another group
  for (const auto& row : rows) {
    box.Click(row.Kind);
    if (!row.File.empty()) box.Pick(row.File);
    CHECK_BECOMES(box.Path(), row.Target);
    if (row.Code == "f-") {
      box.Add("fIRST");
      adding.Running.ExpectMessage(NameListed);
      CHECK(box.Path() == row.Target);
      CHECK(box.Name().empty());
    }
    box.Add(row.Name);
    box.AwaitBanner(row.Banner);
    CHECK_BECOMES(adding.Running.Line(), "");
    adding.Running.TypeLine(row.Code + row.Name.substr(0, 1));
    CHECK_BECOMES(adding.Running.Line(), row.Code + row.Name);
  }
  box.Click("File");
  box.Pick("tool.EXE");
  box.Add("Again");
  adding.Running.ExpectMessage(PathListed);
  CHECK(SendMessageW(box.FileList(), LB_GETCURSEL, 0, 0) == LB_ERR);
  CHECK(box.Name() == "Again");
  box.Click("Cancel");
  adding.Running.Exit();
  CHECK(folder.Data("ListProg") == ListBytes({{"Tool, mine", tools + "\\tool.EXE"}}));
  CHECK(folder.Data("ListFold") == ListBytes({{"Notes", tools}}));
  // The system's code page lacks the letter.
  CHECK(folder.Data("ListFile") == "\xef\xbb\xbf" + ListBytes({{"First", folder.Path("a.txt")}, {"Notes", note}}));
  CHECK(folder.Data("Set") == folder.Saved({.FileUpper = 1, .FoldUpper = 0, .ProgUpper = 0, .Folder = tools}));
}

TEST_CASE("what can't be used is grey, and the focus goes to the name as soon as there is a path") {
  const Folder folder;
  folder.Write("notes.txt");
  const Adding adding(folder);
  const AddBox& box = adding.Box;
  constexpr COLORREF Grey = RGB(192, 192, 192);
  const COLORREF plain = GetSysColor(COLOR_WINDOW);
  const struct {
    std::string Kind, File;
    bool FindsPrograms, ListsFiles, TakesName;
  } rows[] = {{"Prog.", "", true, true, false},   {"Prog.", "Vantor.exe", true, true, true},
              {"File", "", false, true, false},   {"File", "notes.txt", false, true, true},
              {"Folder", "", false, false, true}, {"Prog.", "", true, true, false}};
  for (const auto& row : rows) {
    CAPTURE(row.Kind + row.File);
    if (row.File.empty()) box.Click(row.Kind);
    if (!row.File.empty()) box.Pick(row.File);
    CHECK_BECOMES(window::IsEnabled(box.Button("Find Program Path")), row.FindsPrograms);
    CHECK_BECOMES(window::IsEnabled(box.FileList()), row.ListsFiles);
    CHECK_BECOMES(window::Ground(box.FileList()), row.ListsFiles ? plain : Grey);
    CHECK_BECOMES(window::IsEnabled(box.NameBox()), row.TakesName);
    CHECK_BECOMES(window::Ground(box.NameBox()), row.TakesName ? plain : Grey);
    if (!row.TakesName) continue;
    box.AwaitNameFocus();
    input::Type("n");
    CHECK_BECOMES(window::IsEnabled(box.Button("Add")), true);
    input::Press(VK_BACK);
    CHECK_BECOMES(window::IsEnabled(box.Button("Add")), false);
  }
}

TEST_CASE("only what lies on a fixed disk is added, and a drive that is not ready is told") {
  SKIP_UNLESS(UnderWine(), "a test desktop with all kinds of drives");
  const Folder folder;
  const Adding adding(folder);
  const AddBox& box = adding.Box;
  for (const char letter : {'D', 'E', 'N', 'Q', 'R'}) {
    const std::string root = std::string(1, letter) + ":\\";
    CAPTURE(root);
    std::ofstream(root + "tool.exe").close();
    box.ChooseDrive(letter);
    box.Pick("tool.exe");
    CHECK_BECOMES(box.Path(), root + "tool.exe");
    box.Add("Tool");
    if (letter == 'D') {
      box.AwaitBanner("Program");
      continue;
    }
    adding.Running.ExpectMessage(NotFixed);
    CHECK(box.Path() == root + "tool.exe");
    CHECK(box.Name() == "Tool");
  }
  PullOut('Q');
  box.ChooseDrive('Q');
  adding.Running.ExpectMessage(NotReady);
  CHECK_BECOMES(box.Drive(), "r:");

  std::filesystem::create_directory("E:\\Folder");
  box.ChooseDrive('E');
  CHECK_BECOMES(box.Drive(), "e:");
  PullOut('E');
  box.Enter("Folder");
  adding.Running.ExpectMessage(NotReady);
  CHECK_BECOMES(box.Drive(), "e:");
}

TEST_CASE("the finder takes the program behind a window, its own too, unless Escape breaks it off") {
  const Folder folder;
  const Adding adding(folder);
  const AddBox& box = adding.Box;
  // A window of this test's own is the other program.
  HWND const target = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"BUTTON", L"", WS_POPUP, 700, 100, 200, 200,
                                      nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ShowWindow(target, SW_SHOWNOACTIVATE);
  const auto marked = [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; };
  const POINT button = window::Middle(box.Button("Find Program Path"));
  wchar_t own[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  const struct {
    HWND Window;
    bool Escape;
    std::string Path;
  } rows[] = {
      {target, true, ""}, {target, false, Narrow(own)}, {adding.Running.Bar(), false, folder.Path("Vantor.exe")}};
  for (const auto& row : rows) {
    const POINT to = window::Middle(row.Window);
    input::Hold(button);
    input::Mouse({to.x - 10, to.y - 5});
    input::Mouse(to);
    Await("the mark", marked);
    if (row.Escape) {
      input::Press(VK_ESCAPE);
      Await("the mark to go", [&] { return !marked(); });
    }
    input::LetGo(to);
    CHECK_BECOMES(box.Path(), row.Path);
    CHECK_FALSE(marked());
    if (!row.Escape) box.AwaitNameFocus();
  }
  DestroyWindow(target);
}

TEST_CASE("the open box opens a file by its button, a double click or Enter, and closes") {
  const Folder folder;
  Recorder recorder(folder);
  folder.Write("my notes.vantortest");
  folder.WriteSettings({});
  const Program program(folder);
  program.AwaitBar();
  const AddBox box(program, VK_F3);
  const std::string opened = '"' + folder.Path("recorder.exe") + '"';
  // Another file each time: two clicks at one place soon make a double click.
  for (const std::string how : {"Open", "Enter", "double click"}) {
    for (const auto& [file, started] :
         {std::pair{"recorder.exe", opened},
          {"my notes.vantortest", opened + " document \"" + folder.Path("my notes.vantortest") + '"'}}) {
      box.Open();
      if (how == "double click") box.DoublePick(file);
      if (how != "double click") box.Pick(file);
      if (how == "Open") box.Click("Open");
      if (how == "Enter") input::Press(VK_RETURN);
      CHECK(recorder.Next() == started);
      program.AwaitBar();
    }
  }
}

}  // namespace vantor::desktop
