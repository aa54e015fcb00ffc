#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "fake/TestProgram.h"

namespace vantor::start {
namespace {

using fake::Outcome;
using test::ItemsOf;
using test::Texts;

/// A user who reads every message and accepts it.
class Reader : public form::Headless {
 public:
  Texts Told;

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
  explicit Walk(bool onMedium, int wrong = -1, Outcome how = Outcome::Works) {
    Computer.Home = onMedium ? L"E:\\Work" : L"C:\\Vantor";
    Computer.Decide = [this, wrong, how](std::string_view call) {
      if (Calls++ != wrong) return Outcome::Works;
      WrongCall = call;
      return how;
    };
  }

  void Run() {
    Do([&] { Program.Main(); });
    for (const auto* line : {L"p=notepad\r", L"f=C:\\a.txt\r", L"d=C:\\\r", L"d.sendto\r", L"c.mouse\r", L"e=a@b\r",
                             L"e.bug\r", L"t=12\r", L"w=x\r", L"g/x\r"})
      Type(line);
    AddWebSite();
    Browse();  // from a medium nothing is taken before the computer is remembered
    Options();
    Browse();
    Find();
    ListPanel();
    for (const form::Key key : {form::Key::F7, form::Key::F8, form::Key::F9}) Press(key);
    Do([&] { Desktop.Advance(3000); });
    Do([&] { Program.frmMain.InputClose(); });
  }

  void AddWebSite() {
    bar::AddWebBox& box = Program.frmMain.Web;
    Press(form::Key::F1);
    Fill(box.TextWebUrl, L"http://site");
    Fill(box.TextWebName, L"Site");
    Click(box.CommandAddWeb);
    Type(L"w-site\r");
  }
  void Browse() {
    add::frmBrowse& box = Program.frmBrowse;
    Press(form::Key::F2);
    Do([&] { box.InputDrop({{L"C:\\Work\\Tool.EXE"}, {}}); });
    Click(box.CommandAddOK);
    Select(box.FileWork, 0);
    Fill(box.TextAddName, L"Second");
    Click(box.CommandAddOK);
    for (const int index : {1, 0}) Select(box.DriveWork, index);
    Do([&] { box.DirWork.InputDblClick(); });
    Do([&] { box.InputDrop({{L"C:\\Work"}, {}}); });
    Fill(box.TextAddName, L"Folder");
    Click(box.CommandAddOK);
    Press(form::Key::F3);
    Click(box.CommandSelectOK);
  }
  void Find() {
    add::frmBrowse& box = Program.frmBrowse;
    Press(form::Key::F2);
    Click(box.OptionBrowse[0]);
    Do([&] { box.CommandFindPath.InputMouseDown(form::MouseButton::Left); });
    Do([&] { Desktop.Advance(300); });
    Do([&] { box.CommandFindPath.InputMouseUp(form::MouseButton::Left); });
    Click(box.CommandAddOK);
  }
  void ListPanel() {
    Press(form::Key::F4);
    for (const list::LaunchGroup group : list::LaunchGroups) {
      list::GroupFrame& frame = Program.ListPage.Of(group);
      Select(frame.Name, 0);
      Click(frame.Open);
      Click(frame.Rename);
      Fill(frame.TextRename, L"renamed");
      Click(frame.RenOK);
    }
    Click(Program.ListPage.Prog.Remove);
  }
  void Options() {
    options::OptionsPage& page = Program.OptionsPage;
    Press(form::Key::F6);
    for (form::CheckBox& box : page.CheckOptionMain) Click(box);
    Click(page.CommandOptionShortcut);
    Click(page.CommandOptionRemember);
    Click(page.CommandOptionOK);
  }

  void Press(form::Key key) {
    Do([&] { Desktop.Press(key); });
  }
  void Click(form::Control& control) {
    Do([&] { Desktop.Click(control); });
  }
  void Select(form::ListControl& list, int index) {
    Do([&] {
      if (index < list.ListCount()) list.InputSelect(index);
    });
  }
  void Fill(form::TextBox& box, std::wstring_view text) {
    Do([&] { box.InputEdited(text, static_cast<int>(text.size()), 0); });
  }
  void Type(std::wstring_view line) {
    Fill(Program.frmMain.TextMain, L"");
    Do([&] { Program.frmMain.TextMain.SetFocus(); });
    Do([&] { Desktop.Type(line); });
  }
  /// Nothing that a user does may let an exception out of the program.
  template <class Action>
  void Do(Action action) {
    if (Desktop.Ended()) return;
    REQUIRE_NOTHROW(action());
    CHECK((Desktop.Ended() || Program.MessageState.MessageBody.empty()));
  }

  [[nodiscard]] auto BugQuestions() const {
    return std::count_if(Desktop.Told.begin(), Desktop.Told.end(),
                         [](const auto& text) { return text.find(L"Bug-Vantor-") != text.npos; });
  }
  [[nodiscard]] Texts Items() const { return ItemsOf(Program.ListPage.List); }

  int Calls = 0;
  std::string WrongCall;
  fake::Computer Computer;
  Reader Desktop;
  start::Program Program{Desktop, Computer.Services()};
};

TEST_CASE("each call of a service that goes wrong gives its message, and the program goes on") {
  std::set<std::pair<std::string, std::wstring>> seen;
  for (const bool onMedium : {false, true}) {
    Walk usual(onMedium);
    usual.Run();
    REQUIRE(usual.Desktop.Ended());
    REQUIRE(usual.BugQuestions() == 0);
    REQUIRE(usual.Items().size() == 3);
    for (int wrong = 0; wrong < usual.Calls; ++wrong) {
      for (const Outcome how : {Outcome::Fails, Outcome::Throws}) {
        Walk walk(onMedium, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CHECK(walk.Desktop.Ended());
        CHECK(walk.Computer.Held == 0);
        // What the interfaces speak of has its message, or none; what nobody expected is asked about, once.
        const bool expected = how == Outcome::Fails;
        CHECK(walk.BugQuestions() <= (expected ? 0 : 1));
        for (const std::wstring& text : walk.Desktop.Told) {
          const bool usually = std::count(usual.Desktop.Told.begin(), usual.Desktop.Told.end(), text) > 0;
          if (expected && !usually) seen.emplace(walk.WrongCall, text.substr(0, text.find(L'.')));
        }

        // The next start has what this run had at its end, or what it began with. Where the drive's type could not be
        // found out, the list is that of a medium.
        Walk next(onMedium);
        next.Computer.Disk = walk.Computer.Disk;
        next.Program.Main();
        if (next.Program.Environment.RunMode == walk.Program.Environment.RunMode)
          CHECK((next.Items() == walk.Items() || next.Items().empty()));
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
                               "First", "Next", "RegistryRead", "RegistryWrite", "SpecialFolder", "WindowsDirectory"})
      CHECK(call != silent);
  }
}

}  // namespace
}  // namespace vantor::start
