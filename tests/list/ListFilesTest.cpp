#include <doctest/doctest.h>

#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "list/frmChoose.h"

using namespace vantor;
using list::LaunchGroup;

namespace {

/// One run of the program as far as its files go. The disk is the test's, so that a later run finds the files.
struct Run {
  explicit Run(fake::FakeServices& fakes) : Fakes(fakes) {
    Environment.MediaDriveLetter = L'C';
    Environment.DataFolder = Environment.MediaDriveLetter + L":\\Vantor\\Vantor";
    const std::wstring folder = Environment.DataFolder + L"\\";
    Environment.Files = {folder + L"Set.Orbel",      L"",
                         folder + L"ListFile.Orbel", folder + L"ListFold.Orbel",
                         folder + L"ListProg.Orbel", folder + L"ListWeb.Orbel"};
    Fakes.Disk.AddFolder(folder);
  }
  void Load() {
    Files.Restore();
    Files.LoadSettings();
    Choose.Load();
  }
  void Save() { Files.SaveLaunchList(Choose.List, 150, 300); }
  void Add(LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    Choose.List.Of(group).AddItem(name, path);
  }
  /// "name>path" of each item.
  std::vector<std::wstring> Items(LaunchGroup group) {
    const list::GroupBoxes& boxes = Choose.List.Of(group);
    std::vector<std::wstring> items;
    items.reserve(boxes.Name.Entries().size());
    for (int i = 0; i < boxes.Name.ListCount(); ++i) items.push_back(boxes.Name.List(i) + L">" + boxes.Path.List(i));
    return items;
  }

  fake::FakeServices& Fakes;
  form::Headless Desktop;
  start::Environment Environment;
  list::Settings Settings;
  list::ListFiles Files{Fakes.All(), Environment, Settings};
  message::MessageState MessageState;
  message::Messages Messages{Desktop, MessageState};
  list::frmChoose Choose{Desktop, Files, Fakes.Language, Messages};
};

using Items = std::vector<std::wstring>;

}  // namespace

TEST_CASE("a save writes exact bytes, and the next run has the same list") {
  fake::FakeServices fakes;
  fakes.Disk.AddFile(L"C:\\a, b.doc");
  fakes.Disk.AddFile(L"C:\\p.exe");
  fakes.Disk.AddFolder(L"C:\\Fol der");
  {
    Run run(fakes);
    run.Settings.OptionMask = 6;
    run.Settings.Folder = L"C:\\Docs, old";
    run.Add(LaunchGroup::File, L"A, b", L"C:\\a, b.doc");
    run.Add(LaunchGroup::Fold, L" Fold ", L"C:\\Fol der");
    run.Add(LaunchGroup::Prog, L"caf\u00E9", L"C:\\p.exe");
    run.Add(LaunchGroup::Prog, L"gone", L"C:\\gone.exe");
    run.Save();
  }
  CHECK(fakes.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel") ==
        "6\r\n0\r\n0\r\n1\r\n-1\r\n150\r\n300\r\n\"C:\\Docs, old\"\r\n-1\r\n-1\r\n-1\r\n");
  CHECK(fakes.Disk.Bytes(L"C:\\Vantor\\Vantor\\ListFile.Orbel") == "\"A, b\",\"C:\\a, b.doc\"\r\n");
  CHECK(fakes.Disk.Bytes(L"C:\\Vantor\\Vantor\\ListProg.Orbel") ==
        "\"caf\xE9\",\"C:\\p.exe\"\r\n\"gone\",\"C:\\gone.exe\"\r\n");
  CHECK(!fakes.Disk.HasFile(L"C:\\Vantor\\Vantor\\ListWeb.Orbel"));
  Run run(fakes);
  run.Load();
  CHECK(run.Settings.OptionMask == 6);
  CHECK(run.Settings.Left == 150);
  CHECK(run.Settings.Folder == L"C:\\Docs, old");
  CHECK(run.Items(LaunchGroup::File) == Items{L"A, b>C:\\a, b.doc"});
  CHECK(run.Items(LaunchGroup::Fold) == Items{L" Fold >C:\\Fol der"});
  CHECK(run.Items(LaunchGroup::Prog) == Items{L"caf\u00E9>C:\\p.exe"});
  CHECK(fakes.FileSystem.OpenObjects == 0);
}

TEST_CASE("a group that became empty is no longer loaded, and its file stays") {
  fake::FakeServices fakes;
  {
    Run run(fakes);
    run.Add(LaunchGroup::Web, L"x", L"http://x");
    run.Save();
    run.Choose.ComboListWebName.Clear();
    run.Choose.ComboListWebPath.Clear();
    run.Save();
  }
  CHECK(fakes.Disk.Bytes(L"C:\\Vantor\\Vantor\\ListWeb.Orbel") == "\"x\",\"http://x\"\r\n");
  Run run(fakes);
  run.Load();
  CHECK(run.Items(LaunchGroup::Web).empty());
}

TEST_CASE("double quotes are written so that the item and those after it are read again") {
  fake::FakeServices fakes;
  {
    Run run(fakes);
    run.Add(LaunchGroup::Web, L"the \"best\"", L"http://x/?q=\"a\"");
    run.Add(LaunchGroup::Web, L"next", L"http://y");
    run.Save();
    CHECK(run.Items(LaunchGroup::Web)[0] == L"the \"best\">http://x/?q=\"a\"");
  }
  Run run(fakes);
  run.Load();
  CHECK(run.Items(LaunchGroup::Web) == Items{L"the 'best'>http://x/?q=%22a%22", L"next>http://y"});
}

TEST_CASE("a damaged settings file gives what could be read of it") {
  struct Row {
    std::string_view Bytes;
    int OptionMask;
    int FileUpper;
    int Left;
    int MachineProgUpper;
    bool Whole = false;
  };
  constexpr Row Rows[] = {
      {"", 2, -1, 0, -1},
      {"5", 5, -1, 0, -1},
      {"5\r\n3\r", 5, 3, 0, -1},
      {"5\n3\n-1\n-1\n-1\n70\n80\n\"x\"\n0\n0\n9", 5, 3, 70, 9, true},
      {"5\r\n99999\r\n0\r\nabc\r\n0\r\n7\r\n8\r\n\"\"\r\n1\r\n1\r\n1\r\nmore\r\n", 5, -1, 7, 1},
      {"5\r\n0\r\n0\r\n0\r\n0\r\n7\r\n8\r\n\"not closed\r\n1\r\n1\r\n1\r\n", 5, 0, 7, -1},
  };
  for (const Row& row : Rows) {
    CAPTURE(row.Bytes);
    fake::FakeServices fakes;
    Run run(fakes);
    fakes.Disk.AddFile(run.Environment.Files.Set, row.Bytes);
    const bool whole = list::LoadSettings(fakes.DataFiles, fakes.Language, run.Environment.Files.Set, run.Settings);
    CHECK(whole == row.Whole);
    CHECK(run.Settings.OptionMask == row.OptionMask);
    CHECK(run.Settings.FileUpper == row.FileUpper);
    CHECK(run.Settings.Left == row.Left);
    CHECK(run.Settings.MachineProgUpper == row.MachineProgUpper);
  }
  fake::FakeServices fakes;
  list::Settings settings;
  CHECK(!list::LoadSettings(fakes.DataFiles, fakes.Language, L"C:\\none", settings));
}

TEST_CASE("files cut at any byte give the items before the cut, whatever the upper index says") {
  constexpr std::string_view whole = "\"one\",\"http://1\"\r\n\"two, 2\",\"http://2\"\r\nthree , http://3\r\n";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    for (const int upper : {-32768, -1, 0, 1, 2, 32767}) {
      CAPTURE(length);
      CAPTURE(upper);
      fake::FakeServices fakes;
      Run run(fakes);
      run.Settings.WebUpper = static_cast<std::int16_t>(upper);
      fakes.Disk.AddFile(run.Environment.Files.ListWeb, whole.substr(0, length));
      run.Choose.Load();
      const Items items = run.Items(LaunchGroup::Web);
      CHECK(static_cast<int>(items.size()) <= std::max(upper + 1, 0));
      if (length == whole.size() && upper >= 2) {
        CHECK(items == Items{L"one>http://1", L"two, 2>http://2", L"three>http://3"});
      }
      if (length < 16) CHECK(items.empty());
      if (length >= 16 && upper >= 0) CHECK(items.at(0) == L"one>http://1");
    }
  }
}

TEST_CASE("four groups of 32,767 items come back whole") {
  constexpr int Count = 32767;
  fake::FakeServices fakes;
  fakes.Disk.AddFile(L"C:\\p.exe");
  {
    Run run(fakes);
    for (int i = 0; i < Count; ++i) {
      const std::wstring name = L"Item " + std::to_wstring(i);
      for (const LaunchGroup group : list::LaunchGroups) {
        run.Add(group, name, group == LaunchGroup::Fold ? L"C:\\Vantor" : L"C:\\p.exe");
      }
    }
    run.Save();
  }
  Run run(fakes);
  run.Load();
  CHECK(run.Settings.WebUpper == Count - 1);
  for (const LaunchGroup group : list::LaunchGroups) {
    CHECK(run.Choose.List.Of(group).Name.ListCount() == Count);
    CHECK(run.Choose.List.Of(group).Name.List(Count - 1) == L"Item 32766");
  }
}

TEST_CASE("a place beyond 16 bits is saved as the nearest, and a save that fails harms nothing") {
  fake::FakeServices fakes;
  Run run(fakes);
  run.Add(LaunchGroup::Web, L"x", L"http://x");
  fakes.Disk.FailWritesAfter(0);
  run.Save();
  fakes.Disk.FailNoWrites();
  run.Files.SaveLaunchList(run.Choose.List, 40000, -40000);
  CHECK(run.Settings.Left == 32767);
  CHECK(run.Settings.Top == -32768);
  CHECK(fakes.Disk.HasFile(run.Environment.Files.ListWeb));
}
