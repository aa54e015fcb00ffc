// desktop: --drive e:=floppy --drive f:=floppy --drive n:=network --drive q:=cdrom
// desktop: --root win64 --drive e:=floppy --drive f:=floppy --drive n:=network --drive q:=cdrom
// Adding by browsing, by pointing at a window, and by typing; from a fixed disk, and from a stick that travels.

#include <doctest/doctest.h>

#include "desktop/System.h"

namespace vantor::desktop {
namespace {

/// A program that runs, with its add box open at a folder.
struct Adding {
  explicit Adding(const Folder& folder) : Running((folder.WriteSettings({}), folder)) {
    Running.AwaitBar();
    Box.Open();
  }

  Program Running;
  AddBox Box{Running};
};

/// The box that unfolds from the bar of a running program.
struct WebBox {
  const Program& Running;

  [[nodiscard]] bool Shown() const { return window::OfClass(Running.Bar(), "Edit").size() == 3; }
  [[nodiscard]] HWND Address() const { return window::OfClass(Running.Bar(), "Edit").at(1); }
  [[nodiscard]] HWND Name() const { return window::OfClass(Running.Bar(), "Edit").at(2); }
  [[nodiscard]] HWND Add() const { return window::OfClass(Running.Bar(), "Button").back(); }
  [[nodiscard]] HWND Banner() const { return Running.Button("Site Added To List : Click To Hide"); }

  static void Fill(HWND box, const std::string& text) {
    input::Click(box);
    CHECK_BECOMES(window::FocusOf(box), box);
    input::Type(text);
    CHECK_BECOMES(window::Text(box), text);
  }
};

const struct {
  std::string Option, Name, Code;
} Kinds[] = {{"Prog.", "Program", "p-"}, {"File", "File", "f-"}, {"Folder", "Folder", "d-"}};

/// Adds a program, a file, and the folder that they are in.
void AddAllKinds(const AddBox& box, const std::string& program, const std::string& file, const std::string& begin) {
  for (const auto& kind : Kinds) {
    box.Click(kind.Option);
    if (kind.Name != "Folder") box.Pick(kind.Name == "File" ? file : program);
    box.Add(begin + kind.Name);
    box.AwaitBanner(kind.Name);
  }
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
  CHECK(window::IsEnabled(box.Button("Find Program Path")));
  box.Click("File");
  CHECK_BECOMES(window::IsEnabled(box.Button("Find Program Path")), false);
  CHECK_FALSE(window::IsEnabled(box.NameBox()));
  CHECK_BECOMES(window::Ground(box.NameBox()), RGB(192, 192, 192));
  box.Pick("a.txt");
  box.AwaitNameFocus();
  CHECK_FALSE(window::IsEnabled(box.Button("Add")));
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
    CHECK(window::IsEnabled(box.FileList()) == (row.Kind == "File"));
    if (row.Code == "f-") {
      box.Add("fIRST");
      adding.Running.ExpectMessage("The name you typed is listed name for another item in it's group.\r\n\r\nTwo");
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
  adding.Running.ExpectMessage(
      "Selected item has already been included in the List. There is no need to add it again.\n");
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

TEST_CASE("only what lies on a fixed disk is added, and a drive that is not ready is told") {
  SKIP_UNLESS(UnderWine(), "a test desktop with removable drives");
  const Folder folder;
  const Adding adding(folder);
  const AddBox& box = adding.Box;
  std::ofstream("E:\\tool.exe").close();
  box.ChooseDrive('E');
  box.Pick("tool.exe");
  CHECK_BECOMES(box.Path(), "E:\\tool.exe");
  box.Add("Tool");
  adding.Running.ExpectMessage("You can add Program, File and Folder to Launch List only if those are in a fixed");
  CHECK(box.Path() == "E:\\tool.exe");
  CHECK(box.Name() == "Tool");
  std::filesystem::rename(R"(Z:\prefix\drives\q)", R"(Z:\prefix\drives\q.out)");
  box.ChooseDrive('Q');
  adding.Running.ExpectMessage("The Drive you are trying to select is not ready.\n");
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
  const std::string document = opened + " document \"" + folder.Path("my notes.vantortest") + '"';
  // Another file each time: two clicks at one place soon make a double click.
  for (const bool byKey : {false, true}) {
    box.Open();
    box.Pick(byKey ? "recorder.exe" : "my notes.vantortest");
    if (byKey) input::Press(VK_RETURN);
    if (!byKey) box.Click("Open");
    CHECK(recorder.Next() == (byKey ? opened : document));
    program.AwaitBar();
  }
  box.Open();
  box.DoublePick("my notes.vantortest");
  CHECK(recorder.Next() == document);
  program.AwaitBar();
}

TEST_CASE("sites are added with their addresses as typed; what is listed is refused") {
  const Folder folder;
  folder.WriteSettings({.OptionMask = 6, .WebUpper = 0});
  folder.WriteData("ListWeb", ListBytes({{"News", "http://news.example"}}));
  const Program program(folder);
  program.AwaitBar();
  const WebBox box{program};
  REQUIRE(box.Shown());
  const std::string foreign = "http://\u043F\u0440\u0438\u043C\u0435\u0440";
  const struct {
    std::string Address, Name;
    bool ByKey = true;
    std::string Refusal;
  } rows[] = {
      {"http://a.example/?q=a b,\"c\"", "A, \"quoted\""},
      {foreign, "Foreign", false},
      {"http://news.example", "Other", true, "Selected item has already been included in the List."},
      {"http://NEWS.example", "nEWS", false, "The name you typed is listed name for another item"},
      {"x", "x"},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Name);
    CHECK_FALSE(IsWindowEnabled(box.Name()));
    WebBox::Fill(box.Address(), row.Address);
    CHECK(box.Banner() == nullptr);
    CHECK_BECOMES(window::IsEnabled(box.Name()), true);
    CHECK_FALSE(IsWindowEnabled(box.Add()));
    WebBox::Fill(box.Name(), row.Name);
    CHECK(IsWindowEnabled(box.Add()));
    if (row.ByKey) input::Press(VK_RETURN);
    if (!row.ByKey) input::Click(box.Add());
    if (row.Refusal.empty()) {
      Await("the banner", [&] { return box.Banner() != nullptr; });
      CHECK_BECOMES(window::Focus(program.Bar()), program.TextMain());
      CHECK((window::Text(box.Address()) + window::Text(box.Name())).empty());
      continue;
    }
    program.ExpectMessage(row.Refusal);
    const bool path = row.Name == "Other";
    CHECK_BECOMES(window::Focus(program.Bar()), path ? box.Address() : box.Name());
    CHECK(window::Text(box.Name()) == (path ? "Other" : ""));
    // Folded and unfolded, the box begins anew.
    for (const bool shown : {false, true}) {
      input::Press(VK_F1);
      CHECK_BECOMES(box.Shown(), shown);
    }
    CHECK(window::Text(box.Address()).empty());
  }
  input::Click(box.Banner());
  CHECK_BECOMES(box.Banner(), nullptr);
  program.Exit();
  CHECK(folder.Data("ListWeb") == "\xEF\xBB\xBF" + ListBytes({{"News", "http://news.example"},
                                                              {"A, 'quoted'", "http://a.example/?q=a b,%22c%22"},
                                                              {"Foreign", foreign},
                                                              {"x", "x"}}));
}

TEST_CASE("a list on a stick goes with it, and what lies on a computer waits for that computer") {
  SKIP_UNLESS(UnderWine(), "a test desktop with two removable drives");
  const Folder disk("C:\\");
  for (const char* name : {"tool.exe", "notes.txt"}) disk.Write(name);
  Folder stick("E:\\");
  stick.CopyProgram("recorder.exe", "own.exe");
  stick.Write("own.txt");
  std::ofstream("N:\\tool.exe").close();
  const std::string mediaSet = "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Anna\"\r\n";
  stick.WriteData("MediaSet", mediaSet);
  stick.WriteData("Set", Settings{.WebUpper = 0}.Bytes());
  stick.WriteData("ListWeb", ListBytes({{"Site", "http://example.org/"}}));
  const auto pickOnDisk = [&](const AddBox& box) {
    box.ChooseDrive('C');
    box.Enter(disk.Path().substr(3));
    box.Pick("tool.exe");
    box.Add("Tool");
  };
  {
    const Program program(stick);
    program.AwaitBar();
    const AddBox box(program);
    const Panel preferences(program, VK_F6, "Options");
    box.Open();
    AddAllKinds(box, "own.exe", "own.txt", "Own ");  // what is on the stick needs no computer
    box.Click("Prog.");
    pickOnDisk(box);
    program.ExpectMessage("The selected machine need to be identified first.");
    CHECK(box.Path() == disk.Path("tool.exe"));
    CHECK(box.Name() == "Tool");
    preferences.Open();
    preferences.Click("Remember My Computer");
    CHECK_BECOMES(window::IsEnabled(preferences.Button("Remember My Computer")), false);
    box.Open();
    AddAllKinds(box, "tool.exe", "notes.txt", "Disk ");
    box.Click("Prog.");
    box.ChooseDrive('N');
    box.Pick("tool.exe");
    box.Add("Net");
    program.ExpectMessage("From this machine you can add Program, File and Folder to Launch List but only if");
    box.Click("Cancel");
    program.Exit();
  }
  const std::string inside = "#" + stick.Path().substr(1);
  const std::string machine = stick.Data("Machine");
  const std::string other = "3\r\n\"0BADCAFE\"\r\n" + machine.substr(machine.size() / 2);
  CHECK(machine.starts_with("3\r\n\""));
  const Settings settings{.FileUpper = 0,
                          .FoldUpper = 0,
                          .ProgUpper = 0,
                          .WebUpper = 0,
                          .MachineFileUpper = 0,
                          .MachineFoldUpper = 0,
                          .MachineProgUpper = 0};
  const auto checkSaved = [&](const std::string& ofMachine) {
    const std::pair<std::string, std::string> files[] = {
        {"Set", settings.Bytes()},
        {"MediaSet", mediaSet},
        {"ListFile", ListBytes({{"Own File", inside + "\\own.txt"}})},
        {"ListFold", ListBytes({{"Own Folder", inside}})},
        {"ListProg", ListBytes({{"Own Program", inside + "\\own.exe"}})},
        {"ListWeb", ListBytes({{"Site", "http://example.org/"}})},
        {"Machine", ofMachine},
        {"MachineFile", ListBytes({{"Disk File", disk.Path("notes.txt")}})},
        {"MachineFold", ListBytes({{"Disk Folder", disk.Path()}})},
        {"MachineProg", ListBytes({{"Disk Program", disk.Path("tool.exe")}})}};
    for (const auto& file : files) {
      CAPTURE(file.first);
      CHECK(stick.Data(file.first) == file.second);
    }
  };
  checkSaved(machine);

  stick.MoveTo("F:\\");
  Recorder recorder(stick);
  for (const std::string& ofMachine : {machine, other, machine}) {
    const bool home = ofMachine == machine;
    CAPTURE(home);
    stick.WriteData("Machine", ofMachine);
    const Program program(stick);
    program.AwaitBar();
    for (const auto& [option, name, code] : Kinds) {
      program.TypeLine(code + "di");
      CHECK_BECOMES(program.Line(), home ? std::string(code).append("Disk ").append(name) : code + "di");
      program.TypeLine(code + "o");
      CHECK_BECOMES(program.Line(), std::string(code).append("Own ").append(name));
    }
    program.Enter("p-o");
    CHECK(recorder.Next() == '"' + stick.Path("own.exe") + '"');
    if (!home) {
      const AddBox box(program);
      program.AwaitBar();
      box.Open();
      pickOnDisk(box);
      program.ExpectMessage("You have already indentifed a machine from which to add to Launch List.");
      const Panel preferences(program, VK_F6, "Options");
      preferences.Open();
      CHECK_FALSE(IsWindowEnabled(preferences.Button("Remember My Computer")));
      preferences.Close();
    }
    program.Exit();
    checkSaved(ofMachine);
  }
}

}  // namespace vantor::desktop
