#include <doctest/doctest.h>

#include <algorithm>
#include <set>

#include "fake/TestProgram.h"
#include "flows/NativeWorld.h"
#include "flows/Player.h"

namespace vantor::start {
namespace {

using fake::Outcome;
using test::ItemsOf;
using test::Texts;

/// A user who reads every message and accepts it.
struct Reader : flows::Steps {
  void GoOnUntil(const std::function<bool()>& closed) override {
    Told.push_back(World->See(L"text", L"LabelMessage"));
    if (World->See(L"shown", L"TextInput0") == L"yes") World->Type(L"Ada");
    World->Click(L"CommandOK", L"", false);
    REQUIRE(closed());
  }
  flows::World* World = nullptr;
  Texts Told;
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

/// Everything that can be done with the program. From a medium nothing of a computer is taken before that is
/// remembered.
constexpr std::wstring_view Browse =
    L"press F2 | drop C:\\Work\\Tool.EXE | choose FileWork Tool.EXE | answer Second | choose DriveWork d: | choose "
    L"DriveWork c: | "
    L"double-click DirWork | drop C:\\Work | answer Folder | press F3 | choose FileWork Tool.EXE | click "
    L"CommandSelectOK";
constexpr std::wstring_view Everything[] = {
    L"enter p=notepad | enter f=notes.txt | enter d=C:\\ | enter d.sendto | enter c.mouse | enter e=a@b | enter e.bug",
    L"enter t=12 | enter w=x | enter g/x | press F1 | click TextWebUrl | type http://site | click TextWebName",
    L"answer Site | enter w-site",
    Browse,
    L"press F6 | click CheckOptionMain(0) | click CheckOptionMain(1) | click CheckOptionMain(2)",
    L"click CommandOptionShortcut | click CommandOptionRemember | click CommandOptionOK",
    Browse,
    L"press F2 | click OptionBrowse(0) | hold CommandFindPath | move over other | wait 1 | release | answer Found",
    L"press F4 | click CommandListFileOpen | press F4 | click CommandListWebOpen | press F4",
    L"click CommandListProgRename | answer renamed | click CommandListFoldRename | answer renamed",
    L"click CommandListProgRemove | press F7 F8 F9 | wait 3 | close"};

/// Everything done once. One call of a service may go wrong.
struct Walk : Reader, flows::NativeWorld {
  Walk(bool onMedium, const fake::FakeDisk& disk, int wrong = -1, Outcome how = Outcome::Works)
      : NativeWorld(static_cast<flows::Steps&>(*this)) {
    Reader::World = this;
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
    Do(L"start");
    Loaded = Items();
    for (const std::wstring_view steps : Everything) {
      for (std::size_t at = 0, end = 0; at < steps.size(); at = end + 3) {
        end = std::min(steps.find(L" | ", at), steps.size());
        Do(steps.substr(at, end - at));
      }
    }
  }
  /// Nothing that a user does may let an exception out of the program.
  void Do(std::wstring_view step) {
    if (Desktop && Desktop->Ended()) return;
    REQUIRE_NOTHROW(step == L"start" ? Start() : flows::Try(*this, std::wstring(step)));
    CHECK((Desktop->Ended() || Program->MessageState.MessageBody.empty()));
  }

  [[nodiscard]] auto BugQuestions() const {
    return std::count_if(Told.begin(), Told.end(),
                         [](const auto& text) { return text.find(L"Bug-Vantor-") != text.npos; });
  }
  [[nodiscard]] Texts Items() const { return ItemsOf(Program->ListPage.List); }

  int Calls = 0;
  std::string WrongCall;
  Texts Loaded;  // the items after the start

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
    look.Start();
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
    REQUIRE(usual.Desktop->Ended());
    REQUIRE(usual.BugQuestions() == 0);
    REQUIRE(usual.Items().size() == usual.Loaded.size() + 2);
    calls += usual.Calls;
    for (int wrong = 0; wrong < usual.Calls; ++wrong) {
      for (const Outcome how : {Outcome::Fails, Outcome::Throws}) {
        Walk walk(onMedium, filled, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CAPTURE(onMedium);
        CHECK(walk.Desktop->Ended());
        CHECK(walk.Computer.Held == 0);
        // A loader that breaks takes no more with it than its own file.
        CHECK((walk.Loaded.empty() || walk.Loaded.size() + 3 >= usual.Loaded.size()));
        // What the interfaces speak of has its message, or none; what nobody expected is asked about, once, as is an
        // identity file that can't be read.
        const bool expected = how == Outcome::Fails;
        CHECK(walk.BugQuestions() <= (expected && (!onMedium || walk.WrongCall != "Read") ? 0 : 1));
        for (const std::wstring& text : walk.Told) {
          const bool usually = std::count(usual.Told.begin(), usual.Told.end(), text) > 0;
          if (expected && !usually) seen.emplace(walk.WrongCall, text.substr(0, text.find(L'.')));
        }

        Walk second(onMedium, walk.Computer.Disk);
        for (const auto* step : {L"start", L"drag 40 40", L"close"}) second.Do(step);
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
    for (const auto* silent : {"WriteInPlace", "Remove", "Drives", "Folders", "CreateSnapshot", "First", "Next",
                               "RegistryRead", "RegistryWrite", "SpecialFolder", "WindowsDirectory"})
      CHECK(call != silent);
  }
}

}  // namespace
}  // namespace vantor::start
