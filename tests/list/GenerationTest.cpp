#include "list/Generation.h"

#include <doctest/doctest.h>

#include "fake/StoredList.h"

namespace vantor::list {
namespace {

using Fault = fake::FakeDisk::Fault;
using test::ItemsOf;
using test::StoredList;

const std::wstring Folder = L"E:\\Vantor\\Vantor\\";
const std::wstring Mark = Folder + L"Saving.Orbel";
const std::wstring FixedFolder = L"C:\\Vantor\\Vantor\\";

/// All that a load gives: the items of each group, and the options.
using State = test::Texts;

/// One run of the program on a computer with a copy of a disk, from where its data is.
struct Run {
  explicit Run(const fake::FakeDisk& disk) : List(Computer, !disk.HasFile(FixedFolder + L"Set.Orbel")) { Disk = disk; }
  State Load() {
    List.Load();
    State state = ItemsOf(List.List);
    state.push_back(std::to_wstring(List.Settings.OptionMask));
    return state;
  }
  fake::Computer Computer;
  fake::FakeDisk& Disk = Computer.Disk;
  StoredList List;
};

State Loaded(const fake::FakeDisk& disk) { return Run(disk).Load(); }

/// A medium, or a fixed disk, on which a list was saved some times, so that there is an older generation too.
fake::FakeDisk Used(int times = 3, bool onMedium = true) {
  fake::Computer computer;
  for (int time = 0; time < times; ++time) {
    StoredList run(computer, onMedium);
    run.Load();
    if (time > 0) run.RemoveFirst(LaunchGroup::Prog);
    run.Add(LaunchGroup::Prog, std::to_wstring(time), L"E:\\Work\\Tool.EXE");
    run.Add(LaunchGroup::Prog, L"of the computer", L"C:\\Work\\Tool.EXE");
    run.Add(LaunchGroup::Web, L"first", L"http://first");
    run.Save();
  }
  return computer.Disk;
}

/// Does something while the medium fails at a byte.
template <class Action>
void Break(fake::FakeDisk& disk, Fault fault, std::size_t bytes, Action action) {
  disk.Break(fault, bytes);
  try {
    action();
  } catch (const fake::FakeDisk::Killed&) {
  }
  disk.Break(Fault::None, 0);
  disk.Drives[L'E'].Ready = disk.Drives[L'C'].Ready = true;
}

/// A run that changes the list: longer, shorter, and a group that was empty.
fake::FakeDisk SaveWith(const fake::FakeDisk& disk, Fault fault, std::size_t bytes, std::size_t* used = nullptr) {
  Run broken(disk);
  StoredList& run = broken.List;
  run.Load();
  run.Settings.OptionMask = 6;
  run.RemoveFirst(LaunchGroup::Web);
  run.RemoveFirst(LaunchGroup::Web);
  run.Add(LaunchGroup::Web, L"second", L"http://second");
  run.RemoveFirst(LaunchGroup::Prog);
  run.Add(LaunchGroup::Prog, L"on the medium", L"E:\\Work\\Tool.EXE");
  run.Add(LaunchGroup::Prog, L"on the computer", L"C:\\Work\\Tool.EXE");
  run.Add(LaunchGroup::File, L"new", L"E:\\Work\\Tool.EXE");
  Break(broken.Disk, fault, bytes, [&] {
    run.Save();
    if (used != nullptr) *used = broken.Disk.Used;
  });
  return broken.Disk;
}

/// A save that is broken off at any byte, and what the runs after it find.
void BreakEverywhere(bool onMedium, Fault fault) {
  CAPTURE(onMedium);
  CAPTURE(static_cast<int>(fault));
  const fake::FakeDisk used = Used(3, onMedium);
  const State before = Loaded(used);
  std::size_t needed = 0;
  const State after = Loaded(SaveWith(used, Fault::None, 0, &needed));
  const State older = Loaded(Used(2, onMedium));
  REQUIRE((before != after && before != older));
  const std::wstring folder = onMedium ? Folder : FixedFolder;
  const std::wstring mark = folder + L"Saving.Orbel";

  std::size_t old = 0;
  std::size_t cases = 0;
  const std::size_t least = fault == Fault::Full ? used.Size() : 0;
  const std::size_t most = fault == Fault::Full ? least + 2 * needed : needed;
  const std::size_t step = fault == Fault::Killed ? test::Stride : 7 * std::size_t{test::Stride};
  for (std::size_t back = 0; back <= most - least; back += step, ++cases) {
    const std::size_t bytes = most - back;
    CAPTURE(bytes);
    const fake::FakeDisk broken = SaveWith(used, fault, bytes);
    Run start(broken);
    const State state = start.Load();
    REQUIRE_FALSE((start.Disk.HasFile(mark) && start.Disk.Bytes(mark) == "\"Saving\"\r\n"));
    old += state == before ? 1 : 0;
    REQUIRE((state == before || state == after));
    // What was moved aside, and can't be moved back, is read where it is, through a save that is broken off again.
    for (std::size_t again = 0; again < needed && !broken.HasFile(folder + L"ListWeb.Orbel"); again += test::Stride) {
      Run unmoved(broken);
      unmoved.Computer.Let("Move", fake::Outcome::Fails);
      REQUIRE(unmoved.Load() == state);
      unmoved.List.Settings.OptionMask = 1;
      Break(unmoved.Disk, Fault::Killed, again, [&] { unmoved.List.Save(); });
      State changed = Loaded(unmoved.Disk);
      changed.back() = changed.back() == L"1" ? state.back() : changed.back();
      REQUIRE(changed == state);
    }
    if (cases % 5 != 0) continue;

    // The next run may be broken off as well, while it puts the old list back. The places differ from case to case.
    for (std::size_t again = bytes % 199; again < needed; again += 199) {
      Run next(broken);
      Break(next.Disk, Fault::Killed, again, [&] { next.Load(); });
      REQUIRE(Loaded(next.Disk) == state);
    }
    // What is kept is whole at every moment, or not taken.
    fake::FakeDisk marked = broken;
    marked.AddFile(mark, "\"Saving\"\r\n");
    const State kept = Loaded(marked);
    REQUIRE((kept == older || kept == before || kept == state));
    // A medium that can't be written to shows it too.
    fake::FakeDisk protectedNow = broken;
    protectedNow.Drives[folder[0]].WriteProtected = true;
    REQUIRE(Loaded(protectedNow) == state);
    // And from there on all goes as if nothing had been.
    const fake::FakeDisk healed = SaveWith(broken, Fault::None, 0);
    REQUIRE(Loaded(healed).back() == L"6");
    CHECK_FALSE(healed.HasFile(mark));
  }
  CHECK(old > 1);
  CHECK(old < cases);
}

TEST_CASE("a save broken off at any byte or call leaves the old list or the new one, whole") {
  for (const bool onMedium : {true, false}) {
    for (const Fault fault : {Fault::Killed, Fault::Pulled, Fault::Full}) BreakEverywhere(onMedium, fault);
  }
}

TEST_CASE("a file that may not be written leaves the old list whole, and the new one elsewhere") {
  const fake::FakeDisk used = Used();
  const State before = Loaded(used);
  const State after = Loaded(SaveWith(used, Fault::None, 0));
  const std::wstring rescue = Folder + L"Rescue\\1";
  for (const auto* name : {L"Set", L"ListWeb", L"ListProg", L"MachineProg", L"Backup\\Set", L"Backup\\ListWeb"}) {
    fake::FakeDisk disk = used;
    disk.AddFile(Mark);  // a mark without its text says nothing
    const std::wstring path = Folder + name + L".Orbel";
    disk.AddFile(path, used.Find(path)->Bytes).Writable = false;
    const bool inTheWay = path.find(L"Backup") == std::wstring::npos;
    for (const bool keepable : {true, false}) {
      CAPTURE(keepable);
      if (!keepable) disk.AddFile(Folder + L"Backup\\ListProg.Orbel").Writable = false;
      Run next(SaveWith(disk, Fault::None, 0));
      CHECK((next.Load() == before) == inTheWay);
      CHECK(next.List.Files.SavedElsewhere() == (inTheWay ? rescue : L""));
      for (const auto* file : next.Disk.In(rescue)) next.Disk.AddFile(Folder + file->Name(), file->Bytes);
      CHECK(Loaded(next.Disk) == after);
    }
  }
}

TEST_CASE("a list that can't be put back is read where it is kept, until it can") {
  const State before = Loaded(Used());
  std::size_t needed = 0;
  SaveWith(Used(), Fault::None, 0, &needed);
  fake::FakeDisk broken = SaveWith(Used(), Fault::Pulled, needed * 3 / 4);
  REQUIRE(broken.Bytes(Mark) == "\"Saving\"\r\n");
  const std::wstring web = Folder + L"ListWeb.Orbel";
  broken.AddFile(web, "\"fir").Writable = false;
  CHECK(Loaded(broken) == before);
  for (std::size_t bytes = 0; bytes < needed; bytes += 11) {
    fake::FakeDisk again = SaveWith(broken, Fault::Killed, bytes);
    CHECK(Loaded(again) == before);
    again.AddFile(web, "\"fir").Writable = true;
    CHECK(Loaded(again) == before);
  }
}

TEST_CASE(
    "what is held at the start is waited for, or copied before it is replaced, or left and the new put elsewhere") {
  const fake::FakeDisk used = Used();
  const State before = Loaded(used);
  for (const auto* name : {L"Set", L"ListWeb", L"MachineProg", L"Saving"}) {
    for (const bool released : {true, false}) {
      CAPTURE(released);
      Run run(used);
      const std::wstring path = Folder + name + L".Orbel";
      run.Disk.AddFile(path, used.HasFile(path) ? used.Find(path)->Bytes : "");
      const auto hold = [&](int milliseconds) {
        if (run.Disk.HasFile(path)) run.Disk.AddFile(path, run.Disk.Bytes(path)).HeldFor = milliseconds;
      };
      hold(2000);
      CHECK(Loaded(run.Disk) == before);
      hold(released ? 3000 : 9999);
      // Without the settings every list is read to its end.
      CHECK((run.Load() == before) == (path == Mark || path.ends_with(L"\\Set.Orbel")));
      CHECK(run.Computer.Paused == 2000);
      run.List.Add(LaunchGroup::Web, L"new", L"http://new");
      run.List.Save();
      hold(0);

      const std::wstring rescue = Folder + L"Rescue\\1";
      CHECK(Run(run.Disk).List.Files.SavedElsewhere() == (released ? L"" : rescue));
      if (!released) CHECK(Loaded(run.Disk) == before);
      fake::FakeDisk later = run.Disk;
      for (int time = 0; time < 2; ++time) {
        Run moved(later);
        moved.Load();
        ++moved.List.Settings.OptionMask;
        moved.List.Save();
        later = moved.Disk;
      }
      for (const auto* file : run.Disk.In(rescue)) later.AddFile(Folder + file->Name(), file->Bytes);
      const State back = Loaded(later);
      if (released)
        CHECK(back == before);
      else
        CHECK(std::find(back.begin(), back.end(), L"new>http://new") != back.end());
    }
  }
}

TEST_CASE("the generation kept is a whole one, and only what changed is written") {
  Run run(Used());
  auto& written = run.Disk.Written;
  const State before = run.Load();
  written.clear();
  run.List.Save();
  CHECK(written.empty());
  run.List.Settings.OptionMask = 3;
  run.List.Save();
  test::Texts expected;
  for (const auto* name :
       {L"Backup\\ListProg", L"Backup\\ListWeb", L"Backup\\MachineProg", L"Backup\\Set", L"Saving", L"Set", L"Saving"})
    expected.push_back(Folder + name + L".Orbel");
  CHECK(written == expected);

  // What was damaged from outside is loaded as far as it goes, and saved, but what is kept stays.
  const std::string kept = run.Disk.Bytes(Folder + L"Backup\\ListProg.Orbel");
  Run damaged(run.Disk);
  damaged.Disk.Bytes(Folder + L"ListProg.Orbel").resize(9);
  CHECK(damaged.Load().size() == before.size() - 1);
  damaged.List.Save();
  CHECK(damaged.Disk.Bytes(Folder + L"Backup\\ListProg.Orbel") == kept);
  CHECK(damaged.Disk.Bytes(Folder + L"Rescue\\1\\ListProg.Orbel").size() == 9);
  // Nor is it put back when the save of what was loaded fails.
  Run failing(run.Disk);
  failing.Disk.Bytes(Folder + L"ListProg.Orbel").resize(9);
  const State loaded = failing.Load();
  failing.List.Settings.OptionMask = 1;
  failing.Disk.AddFile(Folder + L"Set.Orbel", failing.Disk.Bytes(Folder + L"Set.Orbel")).Writable = false;
  failing.List.Save();
  CHECK(Loaded(failing.Disk) == loaded);
}

}  // namespace
}  // namespace vantor::list
