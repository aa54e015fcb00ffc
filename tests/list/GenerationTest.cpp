#include "list/Generation.h"

#include <doctest/doctest.h>

#include "fake/StoredList.h"

namespace vantor::list {
namespace {

using fake::FakeDisk;
using test::StoredList;
using test::Texts;
using Fault = FakeDisk::Fault;

const std::wstring Folder = L"E:\\Vantor\\Vantor\\";
const std::wstring Mark = Folder + L"Saving.Orbel";

Texts Loaded(const FakeDisk& disk) { return StoredList(disk).Load(); }

/// The disk after the run of this number while it breaks: each makes one list longer and one shorter, and the
/// fourth adds to an empty one.
FakeDisk Saved(const FakeDisk& disk, std::int16_t number = 3, Fault fault = Fault::None, std::size_t bytes = 0) {
  StoredList run(disk);
  run.Load();
  run.Settings.OptionMask = number;
  run.Clear();
  for (int item = 0; item < number; ++item) run.Add(LaunchGroup::Prog, L"on the medium", L"E:\\Work\\Tool.EXE");
  for (int item = number; item < 4; ++item) run.Add(LaunchGroup::Web, L"site", L"http://site");
  run.Add(LaunchGroup::Prog, L"of the computer " + std::to_wstring(number), L"C:\\Work\\Tool.EXE");
  if (number == 3) run.Add(LaunchGroup::File, L"new", L"E:\\Work\\Tool.EXE");
  run.Disk.Break(fault, bytes);
  run.Save();
  run.Disk.Mend();
  return run.Disk;
}

/// A medium, or a fixed disk, after some runs, so that there is an older generation too.
FakeDisk Used(std::int16_t runs = 3, bool onMedium = true) {
  FakeDisk disk = fake::Computer().Disk;
  disk.AddFile(L"E:\\Work\\Tool.EXE");
  if (onMedium) disk.AddFolder(Folder);
  for (std::int16_t run = 0; run < runs; ++run) disk = Saved(disk, run);
  return disk;
}

/// A save that is broken off at any byte, and what the runs after it find.
void BreakEverywhere(bool onMedium, Fault fault) {
  CAPTURE(onMedium);
  CAPTURE(static_cast<int>(fault));
  const FakeDisk used = Used(3, onMedium);
  const FakeDisk saved = Saved(used);
  const Texts before = Loaded(used);
  const Texts after = Loaded(saved);
  const Texts older = Loaded(Used(2, onMedium));
  REQUIRE((before != after && before != older));
  const std::wstring mark = (onMedium ? L"E" : L"C") + Mark.substr(1);
  const auto isMarked = [&](const FakeDisk& disk) {
    return disk.HasFile(mark) && disk.Find(mark)->Bytes == "\"Saving\"\r\n";
  };

  std::size_t old = 0;
  std::size_t cases = 0;
  const std::size_t least = fault == Fault::Full ? used.Size() : 0;
  const std::size_t most = fault == Fault::Full ? least + 2 * saved.Used : saved.Used;
  const std::size_t step = fault == Fault::Gone ? test::Stride : 7;
  for (std::size_t back = 0; back <= most - least; back += step, ++cases) {
    const std::size_t bytes = most - back;
    CAPTURE(bytes);
    const FakeDisk broken = Saved(used, 3, fault, bytes);
    StoredList start(broken);
    const Texts state = start.Load();
    REQUIRE_FALSE(isMarked(start.Disk));
    old += state == before ? 1 : 0;
    REQUIRE((state == before || state == after));
    // The next run may be broken off as well, at places that differ from case to case: while it puts the old list back,
    // or, if it can only read that where it is kept, in its own save, which may also find one file protected.
    for (std::size_t again = bytes % 53; isMarked(broken) && again < saved.Used; again += 53) {
      StoredList next(broken);
      next.Disk.Break(Fault::Gone, again);
      next.Load();
      next.Disk.Mend();
      REQUIRE(Loaded(next.Disk) == state);

      StoredList kept(broken);
      kept.Disk.Drives[mark[0]].WriteProtected = true;
      REQUIRE(kept.Load() == state);
      kept.Disk.Drives[mark[0]].WriteProtected = false;
      const std::wstring& web = kept.Environment.Files.ListWeb;
      const bool isProtected = again % 2 == 0 && kept.Disk.HasFile(web);
      if (isProtected) kept.Disk.At(web).Writable = false;
      // The save that is broken off may also be the second one of its run.
      if (again % 3 == 0) kept.Save();
      kept.Settings.OptionMask = 1;
      kept.Disk.Break(Fault::Gone, again);
      kept.Save();
      kept.Disk.Mend();
      if (isProtected) kept.Disk.At(web).Writable = true;
      Texts changed = Loaded(kept.Disk);
      if (changed.back() == L"1") changed.back() = state.back();
      REQUIRE(changed == state);
    }
    // What is kept is whole at every moment, or not taken.
    FakeDisk marked = broken;
    marked.AddFile(mark, "\"Saving\"\r\n");
    const Texts kept = Loaded(marked);
    REQUIRE((kept == older || kept == before || kept == state));
    // And from there on all goes as if nothing had been.
    REQUIRE(Loaded(Saved(broken)) == after);
  }
  CHECK(old > 1);
  CHECK(old < cases);
}

TEST_CASE("a save broken off at any byte or call leaves the old list or the new one, whole") {
  for (const bool onMedium : {true, false}) {
    for (const Fault fault : {Fault::Gone, Fault::Full}) BreakEverywhere(onMedium, fault);
  }
}

TEST_CASE("a file that may not be written leaves the old list whole, and the new one elsewhere") {
  const FakeDisk used = Used();
  for (const auto* name : {L"Set", L"ListWeb", L"ListProg", L"MachineProg", L"Backup\\Set", L"Backup\\ListWeb"}) {
    FakeDisk disk = used;
    disk.AddFile(Mark);  // a mark without its text says nothing
    const std::wstring path = Folder + name + L".Orbel";
    disk.At(path).Writable = false;
    const bool inTheWay = path.find(L"Backup") == std::wstring::npos;
    for (const bool keepable : {true, false}) {
      CAPTURE(keepable);
      disk.At(Folder + L"Backup\\ListProg.Orbel").Writable = keepable;
      StoredList next(Saved(disk));
      CHECK((next.Load() == Loaded(used)) == inTheWay);
      CHECK(next.Files.SavedElsewhere() == (inTheWay ? Folder + L"Rescue\\1" : L""));
      next.Disk.CopyFiles(Folder + L"Rescue\\1", Folder);
      CHECK(Loaded(next.Disk) == Loaded(Saved(used)));
    }
  }
}

TEST_CASE("a file held at the start is waited for, and copied before it is replaced, or the new list goes elsewhere") {
  const Texts before = Loaded(Used());
  for (const auto* name : {L"Set", L"ListWeb", L"MachineProg", L"Saving"}) {
    for (const bool released : {true, false}) {
      CAPTURE(released);
      const std::wstring path = Folder + name + L".Orbel";
      StoredList run(Used());
      if (path == Mark) run.Disk.AddFile(path);
      run.Disk.At(path).HeldFor = 2000;
      CHECK(Loaded(run.Disk) == before);
      run.Disk.At(path).HeldFor = released ? 3000 : 9999;
      // Without the settings every list is read to its end.
      CHECK((run.Load() == before) == (path == Mark || path.ends_with(L"\\Set.Orbel")));
      CHECK(run.Computer.Paused == 2000);
      run.Add(LaunchGroup::Web, L"new", L"http://new");
      run.Save();
      if (run.Disk.HasFile(path)) run.Disk.At(path).HeldFor = 0;

      const std::wstring rescue = Folder + L"Rescue\\1";
      CHECK(StoredList(run.Disk).Files.SavedElsewhere() == (released ? L"" : rescue));
      if (!released) CHECK(Loaded(run.Disk) == before);
      // What was rescued stays as it is in later runs.
      FakeDisk later = Saved(Saved(run.Disk, 1));
      later.CopyFiles(rescue, Folder);
      const Texts back = Loaded(later);
      CHECK((released ? back == before : std::ranges::count(back, L"new>http://new") == 1));
    }
  }
}

TEST_CASE("the generation kept is a whole one, and only what changed is written") {
  StoredList run(Used());
  const Texts before = run.Load();
  run.Disk.Written.clear();
  run.Save();
  CHECK(run.Disk.Written.empty());
  run.Settings.OptionMask = 5;
  run.Save();
  Texts expected;
  for (const auto* name :
       {L"Backup\\ListProg", L"Backup\\ListWeb", L"Backup\\MachineProg", L"Backup\\Set", L"Saving", L"Set", L"Saving"})
    expected.push_back(Folder + name + L".Orbel");
  CHECK(run.Disk.Written == expected);

  // What was damaged from outside is loaded as far as it goes, and saved, but what is kept stays.
  const std::string list = std::exchange(run.Disk.At(Folder + L"ListProg.Orbel").Bytes, "\"cut");
  for (const bool fails : {false, true}) {
    StoredList next(run.Disk);
    const Texts loaded = next.Load();
    CHECK(loaded.size() == before.size() - 2);
    next.Settings.OptionMask = fails ? 1 : 5;
    next.Disk.At(Folder + L"Set.Orbel").Writable = !fails;
    next.Save();
    CHECK(next.Disk.At(Folder + L"Backup\\ListProg.Orbel").Bytes == list);
    CHECK(next.Disk.At(Folder + L"Rescue\\1\\ListProg.Orbel").Bytes == "\"cut");
    CHECK(Loaded(next.Disk) == loaded);
    if (fails) continue;
    next.Settings.OptionMask = 6;
    next.Save();
    CHECK(next.Disk.At(Folder + L"Backup\\ListProg.Orbel").Bytes == next.Disk.At(Folder + L"ListProg.Orbel").Bytes);
  }
}

}  // namespace
}  // namespace vantor::list
