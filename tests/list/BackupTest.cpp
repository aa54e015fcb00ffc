#include "list/Backup.h"

#include <doctest/doctest.h>

#include "fake/FakeServices.h"
#include "fake/FaultyDataFiles.h"
#include "form/Headless.h"
#include "list/frmChoose.h"

namespace vantor::list {
namespace {

using fake::FaultyDataFiles;
using Fault = FaultyDataFiles::Fault;

constexpr std::wstring_view Folder = L"E:\\Vantor";

/// All that a load gives: the counts, the folder, and the items of each group.
using State = std::vector<std::wstring>;

/// A medium with a computer's disk beside it, and runs of the program on them as far as its files go.
struct Medium {
  fake::FakeServices Fakes;
  FaultyDataFiles Files{Fakes.Disk, Folder};

  Medium() {
    Fakes.Disk.AddDrive(L'E', 1);
    Fakes.Disk.AddFolder(Folder);
    for (const auto* path : {L"C:\\p.exe", L"E:\\p.exe", L"E:\\q.exe"}) Fakes.Disk.AddFile(path);
  }
  Medium(const Medium& other) : Medium() { Fakes.Disk = other.Fakes.Disk; }
};

struct Run {
  explicit Run(Medium& medium)
      : services{medium.Files,
                 medium.Fakes.FileSystem,
                 medium.Fakes.Language,
                 medium.Fakes.Management,
                 medium.Fakes.Programs,
                 medium.Fakes.ScriptShell,
                 medium.Fakes.System,
                 medium.Fakes.Processes,
                 medium.Fakes.WindowPicker} {
    const std::wstring folder(Folder);
    environment.RunMode = environment.MachineRemembered = true;
    environment.MediaDriveLetter = L"E";
    environment.DataFolder = folder;
    environment.Files = {.Set = folder + L"\\Set.Orbel",
                         .User = {},
                         .ListFile = folder + L"\\ListFile.Orbel",
                         .ListFold = folder + L"\\ListFold.Orbel",
                         .ListProg = folder + L"\\ListProg.Orbel",
                         .ListWeb = folder + L"\\ListWeb.Orbel",
                         .MediaSet = {},
                         .Machine = {},
                         .MachineFile = folder + L"\\MachineFile.Orbel",
                         .MachineFold = folder + L"\\MachineFold.Orbel",
                         .MachineProg = folder + L"\\MachineProg.Orbel"};
  }

  State Load() {
    files.Restore();
    files.LoadSettings();
    choose.Load();
    State state{std::to_wstring(settings.OptionMask)};
    for (const LaunchGroup group : LaunchGroups) {
      const GroupBoxes& boxes = choose.List.Of(group);
      for (int i = 0; i < boxes.Name.ListCount(); ++i) state.push_back(boxes.Name.List(i) + L">" + boxes.Path.List(i));
    }
    return state;
  }
  void Save() { files.SaveLaunchList(choose.List, 0, 0); }
  void Add(LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    choose.List.Of(group).AddItem(name, path);
  }
  void RemoveProgram() {
    choose.ComboListProgName.RemoveItem(0);
    choose.ComboListProgPath.RemoveItem(0);
  }
  /// What each run changes: longer, shorter, and a group that was empty.
  void Change() {
    settings.OptionMask = 6;
    Add(LaunchGroup::Web, L"second", L"http://second");
    RemoveProgram();
    Add(LaunchGroup::Prog, L"on the medium", L"E:\\q.exe");
    Add(LaunchGroup::Prog, L"on the computer", L"C:\\p.exe");
    Add(LaunchGroup::File, L"new", L"E:\\q.exe");
  }

  service::Services services;
  form::Headless desktop;
  start::Environment environment;
  Settings settings;
  ListFiles files{services, environment, settings};
  message::MessageState messageState;
  message::Messages messages{desktop, messageState};
  frmChoose choose{desktop, files, services.Language, messages};
};

/// A medium on which a list was saved some times, so that there is an older generation too.
Medium Used(int times = 3) {
  Medium medium;
  for (int run = 0; run < times; ++run) {
    Run saving(medium);
    saving.Load();
    if (run > 0) saving.RemoveProgram();
    saving.Add(LaunchGroup::Prog, std::to_wstring(run), L"E:\\p.exe");
    saving.Add(LaunchGroup::Prog, L"of the computer", L"C:\\p.exe");
    saving.Add(LaunchGroup::Web, L"first", L"http://first");
    saving.Save();
  }
  return medium;
}

State Loaded(const Medium& medium) {
  Medium copy(medium);
  return Run(copy).Load();
}

/// A changed list is saved while the medium fails at a byte. Returns the bytes that a save needs.
std::size_t SaveWith(Medium& medium, Fault fault, std::size_t bytes) {
  Run run(medium);
  run.Load();
  run.Change();
  medium.Files.Set(fault, bytes);
  try {
    run.Save();
  } catch (const FaultyDataFiles::Killed&) {
  }
  const std::size_t used = medium.Files.Used();
  medium.Files.Set(Fault::None, 0);
  return used;
}

TEST_CASE("a save broken off at any byte leaves the old list or the new one, whole") {
  const Medium used = Used();
  const State before = Loaded(used);
  Medium finished(used);
  const std::size_t needed = SaveWith(finished, Fault::None, 0);
  const State after = Loaded(finished);
  const State older = Loaded(Used(2));
  REQUIRE((before != after && before != older));

  for (const Fault fault : {Fault::Killed, Fault::Pulled, Fault::Full}) {
    std::size_t old = 0;
    std::size_t cases = 0;
    const std::size_t least = fault == Fault::Full ? used.Files.Size() : 0;
    const std::size_t most = fault == Fault::Full ? least + 2 * needed : needed;
    const std::size_t step = fault == Fault::Killed ? 1 : 7;
    for (std::size_t back = 0; back <= most - least; back += step, ++cases) {
      const std::size_t bytes = most - back;
      CAPTURE(static_cast<int>(fault));
      CAPTURE(bytes);
      Medium medium(used);
      SaveWith(medium, fault, bytes);
      const State state = Loaded(medium);
      old += state == before ? 1 : 0;
      REQUIRE((state == before || state == after));

      if (cases % 5 != 0) continue;

      // The next run may be broken off as well, while it puts the old list back. The places differ from case to case.
      for (std::size_t again = bytes % 199; again < needed; again += 199) {
        Medium next(medium);
        next.Files.Set(Fault::Killed, again);
        try {
          Run(next).Load();
        } catch (const FaultyDataFiles::Killed&) {
        }
        next.Files.Set(Fault::None, 0);
        REQUIRE(Loaded(next) == state);
      }
      // What is kept is whole at every moment, or not taken.
      Medium marked(medium);
      marked.Fakes.Disk.AddFile(L"E:\\Vantor\\Saving.Orbel", "\"Saving\"\r\n");
      const State kept = Loaded(marked);
      REQUIRE((kept == older || kept == before || kept == state));
      // A medium that can't be written to shows it too.
      Medium protectedNow(medium);
      protectedNow.Fakes.Disk.Drive(L'E').WriteProtected = true;
      REQUIRE(Loaded(protectedNow) == state);
      // And from there on all goes as if nothing had been.
      SaveWith(medium, Fault::None, 0);
      REQUIRE(Loaded(medium).front() == L"6");
      CHECK_FALSE(medium.Fakes.Disk.HasFile(L"E:\\Vantor\\Saving.Orbel"));
    }
    CHECK(old > 1);
    CHECK(old < cases);
  }
}

TEST_CASE("a file that may not be written leaves the old list whole") {
  const Medium used = Used();
  const State before = Loaded(used);
  for (const auto* name : {L"Set", L"ListWeb", L"ListProg", L"MachineProg", L"Backup\\Set", L"Backup\\ListWeb"}) {
    Medium medium(used);
    medium.Fakes.Disk.AddFile(L"E:\\Vantor\\Saving.Orbel");  // a mark without its text says nothing
    const std::wstring path = L"E:\\Vantor\\" + std::wstring(name) + L".Orbel";
    medium.Fakes.Disk.AddFile(path, medium.Fakes.Disk.Bytes(path)).Writable = false;
    SaveWith(medium, Fault::None, 0);
    const bool inTheWay = path.find(L"Backup") == std::wstring::npos;
    CHECK((Loaded(medium) == before) == inTheWay);
  }
}

TEST_CASE("a list that can't be put back is read where it is kept, until it can") {
  const Medium used = Used();
  const State before = Loaded(used);
  Medium finished(used);
  const std::size_t needed = SaveWith(finished, Fault::None, 0);
  Medium broken(used);
  SaveWith(broken, Fault::Pulled, needed * 3 / 4);
  REQUIRE(broken.Fakes.Disk.Bytes(L"E:\\Vantor\\Saving.Orbel") == "\"Saving\"\r\n");
  broken.Fakes.Disk.AddFile(L"E:\\Vantor\\ListWeb.Orbel", "\"fir").Writable = false;
  for (std::size_t bytes = 0; bytes < needed; bytes += 11) {
    Medium medium(broken);
    CHECK(Run(medium).Load() == before);
    SaveWith(medium, Fault::Killed, bytes);
    CHECK(Loaded(medium) == before);
    medium.Fakes.Disk.AddFile(L"E:\\Vantor\\ListWeb.Orbel", "\"fir").Writable = true;
    CHECK(Loaded(medium) == before);
  }
}

TEST_CASE("the generation kept is a whole one, and only what changed is written") {
  Medium medium = Used();
  const State before = Loaded(medium);
  auto& written = medium.Fakes.Disk.Written;
  {
    Run same(medium);
    same.Load();
    written.clear();
    same.Save();
    CHECK(written.empty());
  }
  {
    Run moved(medium);
    moved.Load();
    moved.settings.OptionMask = 3;
    moved.Save();
    const std::vector<std::wstring> expected{L"E:\\Vantor\\Backup\\ListProg.Orbel",
                                             L"E:\\Vantor\\Backup\\ListWeb.Orbel",
                                             L"E:\\Vantor\\Backup\\MachineProg.Orbel",
                                             L"E:\\Vantor\\Backup\\Set.Orbel",
                                             L"E:\\Vantor\\Saving.Orbel",
                                             L"E:\\Vantor\\Set.Orbel",
                                             L"E:\\Vantor\\Saving.Orbel"};
    CHECK(written == expected);
  }
  // What was damaged from outside is loaded as far as it goes, and saved, but what is kept stays.
  const std::string kept = medium.Fakes.Disk.Bytes(L"E:\\Vantor\\Backup\\ListProg.Orbel");
  medium.Fakes.Disk.Bytes(L"E:\\Vantor\\ListProg.Orbel").resize(9);
  {
    Run damaged(medium);
    CHECK(damaged.Load().size() == before.size() - 1);
    damaged.Save();
  }
  CHECK(medium.Fakes.Disk.Bytes(L"E:\\Vantor\\Backup\\ListProg.Orbel") == kept);
}

}  // namespace
}  // namespace vantor::list
