#include <doctest/doctest.h>

#include <algorithm>

#include "fake/StoredList.h"
#include "fake/Walker.h"

namespace vantor::start {
namespace {

using fake::Outcome;
using test::ItemsOf;
using test::Texts;

/// Lists of three items in each group; on a medium, the last of them is on a computer.
fake::FakeDisk Filled(bool onMedium) {
  fake::FakeDisk disk = fake::Computer().Disk;
  for (const auto* file : {L"D:\\Work\\Tool.EXE", L"E:\\Work\\Tool.EXE"}) disk.AddFile(file);
  if (onMedium) disk.AddFile(L"E:\\Vantor\\Vantor\\MediaSet.Orbel", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  disk.AddFile(L"C:\\Vantor\\Vantor\\User.Orbel", "\"Ada\"\r\n");
  test::StoredList list(disk);
  const std::wstring home = onMedium ? L"E:" : L"D:";
  for (const auto& [name, drive] : {std::pair<std::wstring, std::wstring>(L"a", home), {L"b", home}, {L"c", L"D:"}}) {
    list.Add(list::LaunchGroup::Web, name, L"http://x");
    list.Add(list::LaunchGroup::File, name, drive + L"\\Work\\Tool.EXE");
    list.Add(list::LaunchGroup::Fold, name, drive + L"\\Work");
    list.Add(list::LaunchGroup::Prog, name, drive + L"\\Work\\Tool.EXE");
  }
  list.Save();
  return list.Disk;
}

/// Everything that can be done with the program. On a medium, items of a computer are accepted only after the computer
/// is remembered.
constexpr std::wstring_view Browse =
    L"press F2 | drop C:\\Work\\Tool.EXE | choose FileWork Tool.EXE | answer Second | choose DriveWork d: | "
    L"choose DriveWork c: | double-click DirWork | drop C:\\Work | answer Folder | press F3 | "
    L"choose FileWork Tool.EXE | click CommandSelectOK";
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
  explicit Walk(const fake::FakeDisk& disk, int wrong = -1, Outcome how = Outcome::Works) {
    if (disk.HasFolder(L"E:\\Vantor")) SetHome(L"E");
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
    BugQuestions += TextOf(L"LabelMessage").find(L"Bug-Vantor-") != flows::Text::npos ? 1 : 0;
    if (Find(L"TextInput0") != nullptr) Type(L"Ada");
    Click(L"CommandOK");
    Require(closed(), "a message closes");
  }

  [[nodiscard]] Texts Items() const { return ItemsOf(Program->ListPage.List); }

  int Calls = 0;
  std::string WrongCall;
  int BugQuestions = 0;
  Texts Loaded;  // the items after the start

 private:
  bool waited_ = false;
  bool lastWrong_ = false;
};

Texts Loaded(const fake::FakeDisk& disk) {
  test::StoredList list(disk);
  list.Load();
  return ItemsOf(list.List);
}

bool Contains(const Texts& items, const std::wstring& item) { return std::ranges::count(items, item) > 0; }

/// Checks that a walk lost nothing: what the next start loads, also with each of the rescued lists restored.
void CheckKept(const Walk& walk, const Texts& before, bool expected) {
  Walk second(walk.Computer.Disk);
  for (const auto* step : {L"start", L"drag 40 40", L"close"}) second.Do(step);
  fake::FakeDisk& disk = second.Computer.Disk;
  const std::wstring folder = second.Computer.Home + L"\\Vantor\\";
  std::vector<Texts> lists{Loaded(disk)};
  for (const auto* rescue : disk.In(folder + L"Rescue")) {
    fake::FakeDisk restored = disk;
    restored.CopyFiles(rescue->Path, folder);
    lists.push_back(Loaded(restored));
  }
  // Everything that the user saw at the end exists, and what was invisible; or everything that existed at the
  // beginning.
  const Texts last = walk.Items();
  Texts unseen;
  std::ranges::copy_if(before, std::back_inserter(unseen),
                       [&](const auto& item) { return !Contains(walk.Loaded, item); });
  const auto isThere = [&](const std::wstring& item) { return Contains(lists[0], item); };
  const auto isKnown = [&](const std::wstring& item) { return Contains(last, item) || Contains(unseen, item); };
  CHECK((lists[0] == before || (std::ranges::all_of(last, isThere) && std::ranges::all_of(lists[0], isKnown))));
  const auto missing = std::ranges::count_if(unseen, [&](const std::wstring& item) {
    return std::ranges::none_of(lists, [&](const Texts& list) { return Contains(list, item); });
  });
  // An item whose own existence check failed is as if its target were gone.
  CHECK(missing <= (expected && (walk.WrongCall == "FileExists" || walk.WrongCall == "FolderExists") ? 1 : 0));
}

TEST_CASE("each call of a service that goes wrong loses no item, and the program goes on") {
  int calls = 0;
  for (const auto& [onMedium, remembered] : {std::pair{false, false}, {true, true}, {true, false}}) {
    fake::FakeDisk filled = Filled(onMedium);
    const Texts before = Loaded(filled);
    REQUIRE(before.size() == 12);
    if (remembered) filled.AddFile(L"E:\\Vantor\\Vantor\\Machine.Orbel", "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
    Walk usual(filled);
    usual.Run();
    REQUIRE((usual.Desktop->Ended() && usual.BugQuestions == 0));
    REQUIRE(usual.Impossible == (onMedium && !remembered ? 0 : 1));  // is there a computer to remember?
    REQUIRE(usual.Items().size() == usual.Loaded.size() + 2);
    calls += usual.Calls;
    for (int wrong = 0; wrong < usual.Calls; wrong += test::Stride) {
      for (const Outcome how : {Outcome::Fails, Outcome::Throws}) {
        Walk walk(filled, wrong, how);
        walk.Run();
        CAPTURE(walk.WrongCall);
        CAPTURE(wrong);
        CAPTURE(walk.Computer.Home.substr(0, 1) == L"E");
        CHECK(walk.Desktop->Ended());
        // A failed load affects only its own file.
        CHECK((walk.Loaded.empty() || walk.Loaded.size() + 3 >= usual.Loaded.size()));
        // Expected failures have their message, or none. Unexpected ones lead to one question, and so does an identity
        // file that can't be read.
        const bool expected = how == Outcome::Fails;
        CHECK(walk.BugQuestions <= (expected && (!onMedium || walk.WrongCall != "Read") ? 0 : 1));
        CheckKept(walk, before, expected);
      }
    }
  }
  MESSAGE("calls that went wrong, in two ways each: " << calls);
}

}  // namespace
}  // namespace vantor::start
