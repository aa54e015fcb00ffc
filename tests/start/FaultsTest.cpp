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

std::wstring DataFolder(bool onMedium) { return onMedium ? L"E:\\Work\\Vantor\\" : L"C:\\Vantor\\Vantor\\"; }

constexpr char Identity[] = "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n";

/// A list of three items in each group; on the medium one of them lies on a computer, which may be the remembered one.
fake::FakeDisk FilledDisk(bool onMedium, bool remembered) {
  fake::FakeDisk disk = fake::Computer().Disk;
  const std::string drive = onMedium ? "#:" : "D:";
  const std::string uppers = onMedium ? "1\r\n1\r\n1\r\n2\r\n" : "2\r\n2\r\n2\r\n2\r\n";
  const std::string machineUppers = onMedium ? "0\r\n0\r\n0\r\n" : "-1\r\n-1\r\n-1\r\n";
  const auto put = [&](std::wstring_view name, const std::string& bytes) {
    disk.AddFile(DataFolder(onMedium).append(name).append(L".Orbel"), bytes);
  };
  const auto records = [](const std::string& names, const std::string& target) {
    std::string bytes;
    for (const char name : names) bytes += std::string("\"") + name + "\",\"" + target + "\"\r\n";
    return bytes;
  };
  put(L"Set", "2\r\n" + uppers + "0\r\n0\r\n\"\"\r\n" + machineUppers);
  put(L"User", "\"Ada\"\r\n");
  put(L"ListWeb", records("abc", "http://x"));
  for (const auto& [name, target] :
       {std::pair{L"File", "\\Work\\Tool.EXE"}, {L"Fold", "\\Work"}, {L"Prog", "\\Work\\Tool.EXE"}}) {
    put(std::wstring(L"List") + name, records(onMedium ? "ab" : "abc", drive + target));
    if (onMedium) put(std::wstring(L"Machine") + name, records("c", std::string("D:") + target));
  }
  if (onMedium) put(L"MediaSet", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  if (remembered) put(L"Machine", Identity);
  return disk;
}

/// Everything that can be done with the program, done once. One call of a service may go wrong.
struct Walk {
  Walk(bool onMedium, const fake::FakeDisk& disk, int wrong = -1, Outcome how = Outcome::Works) {
    Computer.Home = onMedium ? L"E:\\Work" : L"C:\\Vantor";
    Computer.Disk = disk;
    Computer.Decide = [this, wrong, how](std::string_view call) {
      if (call == "Pause") {
        waited_ = true;
        return Outcome::Works;
      }
      // What can't be read stays so for as long as it is tried again.
      const bool again = std::exchange(waited_, false) && lastWrong_ && call == "Read";
      lastWrong_ = again || Calls++ == wrong;
      if (!lastWrong_) return Outcome::Works;
      WrongCall = call;
      return how;
    };
  }

  void Run() {
    Do([&] { Program.Main(); });
    Loaded = Items();
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
  Texts Loaded;  // the items after the start
  fake::Computer Computer;
  Reader Desktop;
  start::Program Program{Desktop, Computer.Services()};

 private:
  bool waited_ = false;
  bool lastWrong_ = false;
};

/// What the next start on the remembered computer has, and what it would have with each of the rescued lists put back.
std::vector<Texts> Lists(bool onMedium, const fake::FakeDisk& disk) {
  const std::wstring folder = DataFolder(onMedium);
  std::vector<fake::FakeDisk> disks{disk};
  if (onMedium) disks[0].AddFile(folder + L"Machine.Orbel", Identity);
  for (const auto* rescue : disk.In(folder + L"Rescue")) {
    disks.push_back(disks[0]);
    for (const auto* file : disk.In(rescue->Path)) disks.back().AddFile(folder + file->Name(), file->Bytes);
  }
  std::vector<Texts> lists;
  for (const fake::FakeDisk& each : disks) {
    Walk look(onMedium, each);
    look.Program.Main();
    lists.push_back(look.Items());
  }
  return lists;
}

bool Contains(const Texts& items, const std::wstring& item) {
  return std::find(items.begin(), items.end(), item) != items.end();
}

TEST_CASE("each call of a service that goes wrong gives its message, loses no item, and the program goes on") {
  std::set<std::pair<std::string, std::wstring>> seen;
  int calls = 0;
  for (const auto& place : {std::pair{false, false}, {true, true}, {true, false}}) {
    const bool onMedium = place.first;
    const fake::FakeDisk filled = FilledDisk(onMedium, place.second);
    const Texts before = Lists(onMedium, filled)[0];
    REQUIRE(before.size() == 12);
    Walk usual(onMedium, filled);
    usual.Run();
    REQUIRE(usual.Desktop.Ended());
    REQUIRE(usual.BugQuestions() == 0);
    REQUIRE(usual.Items().size() == usual.Loaded.size() + 3);
    calls += usual.Calls;
    for (int wrong = 0; wrong < usual.Calls; ++wrong) {
      for (const Outcome how : {Outcome::Fails, Outcome::Throws}) {
        Walk walk(onMedium, filled, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CAPTURE(onMedium);
        CHECK(walk.Desktop.Ended());
        CHECK(walk.Computer.Held == 0);
        // A loader that breaks takes no more with it than its own file.
        CHECK((walk.Loaded.empty() || walk.Loaded.size() + 3 >= usual.Loaded.size()));
        // What the interfaces speak of has its message, or none; what nobody expected is asked about, once, as is an
        // identity file that can't be read.
        const bool expected = how == Outcome::Fails;
        CHECK(walk.BugQuestions() <= (expected && (!onMedium || walk.WrongCall != "Read") ? 0 : 1));
        for (const std::wstring& text : walk.Desktop.Told) {
          const bool usually = std::count(usual.Desktop.Told.begin(), usual.Desktop.Told.end(), text) > 0;
          if (expected && !usually) seen.emplace(walk.WrongCall, text.substr(0, text.find(L'.')));
        }

        Walk second(onMedium, walk.Computer.Disk);
        second.Program.Main();
        second.Desktop.DragBy(second.Program.frmMain, 600, 600);
        second.Do([&] { second.Program.frmMain.InputClose(); });
        const std::vector<Texts> lists = Lists(onMedium, second.Computer.Disk);
        const auto unseen = [&](const std::wstring& item) {
          return Contains(before, item) && !Contains(walk.Loaded, item);
        };
        // What the user saw at the end is there, and what could not be seen; or all that there was at the beginning.
        const Texts seenLast = walk.Items();
        const bool saved =
            std::all_of(seenLast.begin(), seenLast.end(), [&](const auto& item) { return Contains(lists[0], item); }) &&
            std::all_of(lists[0].begin(), lists[0].end(),
                        [&](const auto& item) { return Contains(seenLast, item) || unseen(item); });
        CHECK((saved || lists[0] == before));
        const auto missing = std::count_if(before.begin(), before.end(), [&](const std::wstring& item) {
          return unseen(item) &&
                 std::none_of(lists.begin(), lists.end(), [&](const Texts& list) { return Contains(list, item); });
        });
        const bool targetGone = expected && (walk.WrongCall == "FileExists" || walk.WrongCall == "FolderExists");
        CHECK(missing <= (targetGone ? 1 : 0));
      }
    }
  }
  MESSAGE("calls that went wrong, in two ways each: " << calls);
  const std::pair<std::string, std::wstring> expected[] = {
      {"Available", L"Your machine need Microsoft Scripting Runtime update to run this Program"},
      {"CanWrite", L"The list and settings cannot be saved in C:\\Vantor\\Vantor"},
      {"DriveReady", L"The Drive you are trying to select is not ready"},
      {"ManagedProcesses", L"Could not find the Executable Path"},
      {"ProcessOfWindow", L"Could not find the Executable Path"},
      {"RequestMakeCall", L"Could not dial the number"},
      {"Run", L"There was some error"},
      {"ShellOpen", L"There was some error"},
      {"StartCommandLine", L"There was some error"},
      {"Write", L"Could not save data for identifying this machine"},
  };
  for (const auto& row : expected) {
    CAPTURE(row.first);
    CHECK(seen.count(row) == 1);
  }
  for (const auto& [call, text] : seen) {
    for (const auto* silent : {"WriteInPlace", "Remove", "Drives", "Folders", "Files", "CreateSnapshot", "First",
                               "Next", "RegistryRead", "RegistryWrite", "SpecialFolder", "WindowsDirectory"})
      CHECK(call != silent);
  }
}

}  // namespace
}  // namespace vantor::start
