#include <doctest/doctest.h>

#include <algorithm>
#include <map>
#include <set>

#include "fake/StoredList.h"
#include "fake/Walker.h"

namespace vantor::start {
namespace {

using fake::Outcome;
using test::ItemsOf;
using test::Texts;

// Lists of three items in each group; on the medium, one of them is on a computer, which may be the remembered one.
constexpr std::wstring_view OnDisk =
    LR"(given program D:\Work\Tool.EXE
given item ListWeb a > http://x | b > http://x | c > http://x
given item ListFile a > D:\Work\Tool.EXE | b > D:\Work\Tool.EXE | c > D:\Work\Tool.EXE
given item ListFold a > D:\Work | b > D:\Work | c > D:\Work
given item ListProg a > D:\Work\Tool.EXE | b > D:\Work\Tool.EXE | c > D:\Work\Tool.EXE
start
close)";
constexpr std::wstring_view OnMedium =
    LR"(given home E
given program D:\Work\Tool.EXE | E:\Work\Tool.EXE
given data MediaSet "Vantor Media 1" | "Ready" | "Ada"
given item ListWeb a > http://x | b > http://x | c > http://x
given item ListFile a > #:\Work\Tool.EXE | b > #:\Work\Tool.EXE
given item ListFold a > #:\Work | b > #:\Work
given item ListProg a > #:\Work\Tool.EXE | b > #:\Work\Tool.EXE
given item MachineFile c > D:\Work\Tool.EXE
given item MachineFold c > D:\Work
given item MachineProg c > D:\Work\Tool.EXE
start
close)";
constexpr std::wstring_view Remembered = L"given data Machine 3 | \"1A2B3C4D\" | 80023715840";

/// Everything that can be done with the program. On a medium, items of a computer are accepted only after the computer
/// is remembered.
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

/// Does everything once, as a user who accepts every message. One call of a service may fail.
struct Walk : fake::Walker {
  Walk(bool onMedium, const fake::FakeDisk& disk, int wrong = -1, Outcome how = Outcome::Works) {
    if (onMedium) SetHome(L"E");
    Computer.Disk = disk;
    Computer.Decide = [this, wrong, how](std::string_view call) {
      if (call == "Pause") {
        waited_ = true;
        return Outcome::Works;
      }
      // What can't be read stays unreadable while it is retried.
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
      for (const flows::Text& step : flows::Split(steps, L" | ")) Do(step);
    }
  }
  void GoOnUntil(const std::function<bool()>& closed) override {
    Told.push_back(TextOf(L"LabelMessage"));
    if (Find(L"TextInput0") != nullptr) Type(L"Ada");
    Click(L"CommandOK");
    Require(closed(), "a message closes");
  }

  [[nodiscard]] auto BugQuestions() const {
    return std::ranges::count_if(Told, [](const auto& text) { return text.find(L"Bug-Vantor-") != text.npos; });
  }
  [[nodiscard]] Texts Items() const { return ItemsOf(Program->ListPage.List); }

  int Calls = 0;
  std::string WrongCall;
  Texts Told;
  Texts Loaded;  // the items after the start

 private:
  bool waited_ = false;
  bool lastWrong_ = false;
};

/// The disk after the steps.
fake::FakeDisk After(std::wstring_view steps, bool onMedium, const fake::FakeDisk& disk) {
  flows::Player player;
  if (onMedium) player.SetHome(L"E");
  player.Computer.Disk = disk;
  for (const flows::Text& step : flows::Split(steps, L"\n")) player.Do(step);
  return player.Computer.Disk;
}

/// What the next start on the remembered computer loads, and what it would load with each of the rescued lists
/// restored.
std::vector<Texts> Lists(bool onMedium, const fake::FakeDisk& disk) {
  const std::wstring folder = onMedium ? L"E:\\Vantor\\Vantor\\" : L"C:\\Vantor\\Vantor\\";
  std::vector<fake::FakeDisk> disks{onMedium ? After(Remembered, true, disk) : disk};
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

bool Contains(const Texts& items, const std::wstring& item) { return std::ranges::count(items, item) > 0; }

TEST_CASE("each call of a service that goes wrong gives its message, loses no item, and the program goes on") {
  std::map<std::wstring, std::set<std::string>> seen;  // the failed calls, by the beginnings of their messages
  int calls = 0;
  for (const auto& place : {std::pair{false, false}, {true, true}, {true, false}}) {
    const bool onMedium = place.first;
    fake::FakeDisk filled = After(onMedium ? OnMedium : OnDisk, onMedium, fake::Computer().Disk);
    if (place.second) filled = After(Remembered, onMedium, filled);
    const Texts before = Lists(onMedium, filled)[0];
    REQUIRE(before.size() == 12);
    Walk usual(onMedium, filled);
    usual.Run();
    REQUIRE(usual.Desktop->Ended());
    REQUIRE(usual.BugQuestions() == 0);
    REQUIRE(usual.Items().size() == usual.Loaded.size() + 2);
    calls += usual.Calls;
    for (int wrong = 0; wrong < usual.Calls; wrong += test::Stride) {
      for (const Outcome how : {Outcome::Fails, Outcome::Throws}) {
        Walk walk(onMedium, filled, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CAPTURE(onMedium);
        CHECK(walk.Desktop->Ended());
        // A failed load affects only its own file.
        CHECK((walk.Loaded.empty() || walk.Loaded.size() + 3 >= usual.Loaded.size()));
        // Expected failures have their message, or none. Unexpected ones lead to one question, and so does an identity
        // file that can't be read.
        const bool expected = how == Outcome::Fails;
        CHECK(walk.BugQuestions() <= (expected && (!onMedium || walk.WrongCall != "Read") ? 0 : 1));
        for (const std::wstring& text : walk.Told) {
          const bool usually = std::count(usual.Told.begin(), usual.Told.end(), text) > 0;
          if (expected && !usually) seen[text.substr(0, 12)].insert(walk.WrongCall);
        }

        Walk second(onMedium, walk.Computer.Disk);
        for (const auto* step : {L"start", L"drag 40 40", L"close"}) second.Do(step);
        const std::vector<Texts> lists = Lists(onMedium, second.Computer.Disk);
        // Everything that the user saw at the end exists, and what was invisible; or everything that existed at the
        // beginning.
        Texts unseen;
        for (const std::wstring& item : before) {
          if (!Contains(walk.Loaded, item)) unseen.push_back(item);
        }
        const Texts last = walk.Items();
        const auto isThere = [&](const std::wstring& item) { return Contains(lists[0], item); };
        const auto isKnown = [&](const std::wstring& item) { return Contains(last, item) || Contains(unseen, item); };
        const bool saved = std::ranges::all_of(last, isThere) && std::ranges::all_of(lists[0], isKnown);
        CHECK((saved || lists[0] == before));
        const auto missing = std::ranges::count_if(unseen, [&](const std::wstring& item) {
          return std::ranges::none_of(lists, [&](const Texts& list) { return Contains(list, item); });
        });
        const bool targetGone = expected && (walk.WrongCall == "FileExists" || walk.WrongCall == "FolderExists");
        CHECK(missing <= (targetGone ? 1 : 0));
      }
    }
  }
  MESSAGE("calls that went wrong, in two ways each: " << calls);
  if (test::Stride > 1) return;
  // All other failures are silent.
  const std::map<std::wstring, std::set<std::string>> expected{
      {L"Could not di", {"RequestMakeCall"}},
      {L"Could not fi", {"ProcessOfWindow", "WindowFromPoint"}},
      {L"Could not sa", {"Write"}},
      {L"From this ma", {"DriveType"}},
      {L"Selected ite", {"FileExists", "Files"}},
      {L"The Drive yo", {"DriveReady", "FolderExists"}},
      {L"The list and", {"CanWrite"}},
      {L"The name you", {"DriveReady", "FolderExists"}},
      {L"There was so", {"Read", "Run", "ShellOpen", "StartCommandLine"}},
      {L"To run the P", {"DriveType"}},
      {L"While Vantor", {"Read", "ReadDiskIdentity"}},
      {L"Your machine", {"Available"}},
  };
  for (const auto& [message, failed] : expected) CHECK(seen[message] == failed);
  CHECK(seen.size() == expected.size());
}

}  // namespace
}  // namespace vantor::start
