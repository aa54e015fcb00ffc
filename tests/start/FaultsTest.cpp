#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "fake/FailingServices.h"
#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "message/frmMessage.h"
#include "start/Program.h"

namespace vantor::start {
namespace {

constexpr std::wstring_view BugQuestion = L"Bug-Vantor-";

/// A user who reads every message and accepts it.
class Reader : public form::Headless {
 public:
  std::vector<std::wstring> Told;

  void RunModal(form::Form& form) override {
    auto& dialog = dynamic_cast<message::frmMessage&>(form);
    Told.push_back(dialog.LabelMessage.Caption());
    if (dialog.TextInput0.Visible()) Type(L"Ada");
    Click(dialog.CommandOK);
    REQUIRE_FALSE(form.Visible());
  }
};

/// Everything that can be done with the program, done once. One call of a service may go wrong.
struct Walk {
  explicit Walk(bool onMedium, int wrong = -1, fake::Outcome how = fake::Outcome::Works) : Wrong(wrong), How(how) {
    World.Disk.AddDrive(L'E', 1);
    for (const auto* path : {L"C:\\Tools\\Edit.EXE", L"C:\\Desktop\\a.txt", L"E:\\Tools\\x.exe"})
      World.Disk.AddFile(path);
    World.System.Program = onMedium ? L"E:\\Tools" : L"C:\\Vantor";
    World.Processes.AddEntry(7, "edit.exe");
    World.Processes.Managed = {{7, L"C:\\Tools\\Edit.EXE"}};
    World.WindowPicker.Owners = {{service::WindowId{1}, 7}};
    World.WindowPicker.UnderCursor = service::WindowId{1};
    World.ScriptShell.SpecialFolders[L"Desktop"] = L"C:\\Desktop";
  }

  void Run() {
    Do([&] { Program.Main(); });
    for (const auto* line : {L"p=notepad\r", L"f=C:\\a.txt\r", L"d=C:\\\r", L"d.sendto\r", L"c.mouse\r", L"e=a@b\r",
                             L"e.bug\r", L"t=12\r", L"w=x\r", L"g/x\r"}) {
      Type(line);
    }
    AddWebSite();
    Browse();  // from a medium nothing is taken before the computer is remembered
    Options();
    Browse();
    Find();
    ListPanel();
    for (const form::Key key : {form::Key::F7, form::Key::F8, form::Key::F9}) Do([&] { Desktop.Press(key); });
    Do([&] { Desktop.Advance(3000); });
    Do([&] { Program.frmMain.InputClose(); });
  }

  void Type(std::wstring_view line) {
    Do([&] {
      Program.frmMain.TextMain.SetText({});
      Program.frmMain.TextMain.SetFocus();
      Desktop.Type(line);
    });
  }
  void Fill(form::TextBox& box, std::wstring_view text) {
    Do([&] { box.InputEdited(text, static_cast<int>(text.size()), 0); });
  }
  void Click(form::Control& control) {
    Do([&] { Desktop.Click(control); });
  }
  void AddWebSite() {
    Do([&] { Desktop.Press(form::Key::F1); });
    Fill(Program.frmMain.Web.TextWebUrl, L"http://site");
    Fill(Program.frmMain.Web.TextWebName, L"Site");
    Click(Program.frmMain.Web.CommandAddWeb);
    Type(L"w-site\r");
  }
  void Browse() {
    auto& browse = Program.frmBrowse;
    Do([&] { Desktop.Press(form::Key::F2); });
    Do([&] { browse.InputDrop({{L"C:\\Tools\\Edit.EXE"}, {}}); });
    Click(browse.CommandAddOK);
    Do([&] {
      if (browse.FileWork.ListCount() > 0) browse.FileWork.InputSelect(0);
    });
    Fill(browse.TextAddName, L"Second");
    Click(browse.CommandAddOK);
    for (const int index : {1, 0}) {
      Do([&] {
        if (browse.DriveWork.ListCount() > index) browse.DriveWork.InputSelect(index);
      });
    }
    Do([&] { browse.DirWork.InputDblClick(); });
    Do([&] { browse.InputDrop({{L"C:\\Desktop"}, {}}); });
    Fill(browse.TextAddName, L"Folder");
    Click(browse.CommandAddOK);
    Do([&] { Desktop.Press(form::Key::F3); });
    Click(browse.CommandSelectOK);
  }
  void Find() {
    auto& browse = Program.frmBrowse;
    Do([&] { Desktop.Press(form::Key::F2); });
    Click(browse.OptionBrowse[0]);
    Do([&] { browse.CommandFindPath.InputMouseDown(form::MouseButton::Left); });
    Do([&] { Desktop.Advance(300); });
    Do([&] { browse.CommandFindPath.InputMouseUp(form::MouseButton::Left); });
    Click(browse.CommandAddOK);
  }
  void ListPanel() {
    Do([&] { Desktop.Press(form::Key::F4); });
    for (const list::LaunchGroup group : list::LaunchGroups) {
      list::GroupFrame& frame = Program.frmChoose.Page.Of(group);
      Do([&] {
        if (frame.Name.ListCount() > 0) frame.Name.InputSelect(0);
      });
      Click(frame.Open);
      Click(frame.Rename);
      Fill(frame.TextRename, L"renamed");
      Click(frame.RenOK);
    }
    Click(Program.frmChoose.Page.Prog.Remove);
  }
  void Options() {
    auto& options = Program.OptionsPage;
    Do([&] { Desktop.Press(form::Key::F6); });
    for (form::CheckBox& box : options.CheckOptionMain) Click(box);
    Click(options.CommandOptionShortcut);
    Click(options.CommandOptionRemember);
    Click(options.CommandOptionOK);
  }

  /// Nothing that a user does may let an exception out of the program.
  template <class Action>
  void Do(Action action) {
    if (Desktop.Ended()) return;
    REQUIRE_NOTHROW(action());
    CHECK((Desktop.Ended() || Program.MessageState.MessageBody.empty()));
  }
  [[nodiscard]] int BugQuestions() const {
    return static_cast<int>(std::count_if(Desktop.Told.begin(), Desktop.Told.end(), [](const std::wstring& text) {
      return text.find(BugQuestion) != std::wstring::npos;
    }));
  }
  [[nodiscard]] std::vector<std::wstring> Items() {
    std::vector<std::wstring> items;
    for (const list::LaunchGroup group : list::LaunchGroups) {
      const list::GroupBoxes& boxes = Program.frmChoose.List.Of(group);
      REQUIRE(boxes.Name.ListCount() == boxes.Path.ListCount());
      for (int i = 0; i < boxes.Name.ListCount(); ++i) items.push_back(boxes.Name.List(i) + L">" + boxes.Path.List(i));
    }
    return items;
  }

  int Wrong;
  fake::Outcome How;
  int Calls = 0;
  std::string WrongCall;
  fake::FakeServices World;
  Reader Desktop;
  fake::FailingServices Services{World.All(), [this](const char* call) {
                                   if (Calls++ != Wrong) return fake::Outcome::Works;
                                   WrongCall = call;
                                   return How;
                                 }};
  start::Program Program{Desktop, Services.All()};
};

}  // namespace

TEST_CASE("each call of a service that goes wrong gives its message, and the program goes on") {
  std::set<std::pair<std::string, std::wstring>> seen;
  for (const bool onMedium : {false, true}) {
    Walk usual(onMedium);
    usual.Run();
    REQUIRE(usual.Desktop.Ended());
    REQUIRE(usual.BugQuestions() == 0);
    REQUIRE(usual.Items().size() == 3);
    for (int wrong = 0; wrong < usual.Calls; ++wrong) {
      for (const fake::Outcome how : {fake::Outcome::Fails, fake::Outcome::Throws}) {
        Walk walk(onMedium, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CHECK(walk.Desktop.Ended());
        CHECK(walk.World.FileSystem.OpenObjects == 0);
        // What the interfaces speak of has its message, or none; what nobody expected is asked about, once.
        const bool expected = how == fake::Outcome::Fails;
        CHECK(walk.BugQuestions() <= (expected ? 0 : 1));
        for (const std::wstring& text : walk.Desktop.Told) {
          const bool usually = std::count(usual.Desktop.Told.begin(), usual.Desktop.Told.end(), text) > 0;
          if (expected && !usually) seen.emplace(walk.WrongCall, text.substr(0, text.find(L'.')));
        }

        // The next start has what this run had at its end, or what it began with. Where the drive's type could not be
        // found out, the list is that of a medium.
        Walk next(onMedium);
        next.World.Disk = walk.World.Disk;
        next.Program.Main();
        const auto items = next.Items();
        if (next.Program.Environment.RunMode == walk.Program.Environment.RunMode)
          CHECK((items == walk.Items() || items.empty()));
      }
    }
  }
  const std::pair<std::string, std::wstring> expected[] = {
      {"Available", L"Your machine need Microsoft Scripting Runtime update to run this Program"},
      {"DriveReady", L"The Drive you are trying to select is not ready"},
      {"FolderIsEmpty", L"To run the Program from this Media Program setup need to be Reset"},
      {"MakeFolder", L"There was problem writing Data on the Media from which you are trying to run the Program"},
      {"ManagedProcesses", L"Could not find the Executable Path"},
      {"ProcessOfWindow", L"Could not find the Executable Path"},
      {"RequestMakeCall", L"Could not dial the number"},
      {"Run", L"There was some error"},
      {"ShellOpen", L"There was some error"},
      {"StartCommandLine", L"There was some error"},
      {"Write", L"Could not save data for identifying this machine"},
      {"Write", L"There was problem writing Data on the Media from which you are trying to run the Program"},
  };
  for (const auto& row : expected) {
    CAPTURE(row.first);
    CHECK(seen.count(row) == 1);
  }
  for (const auto& [call, text] : seen) {
    for (const auto* silent : {"Read", "WriteInPlace", "Remove", "Drives", "Folders", "Files", "CreateSnapshot",
                               "First", "Next", "RegistryRead", "RegistryWrite", "SpecialFolder", "WindowsDirectory"}) {
      CHECK(call != silent);
    }
  }
}

}  // namespace vantor::start
