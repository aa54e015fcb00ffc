#pragma once

#include <string>
#include <vector>

#include "fake/Computer.h"
#include "form/Headless.h"
#include "start/Places.h"
#include "start/Program.h"

namespace vantor::test {

using Texts = std::vector<std::wstring>;

/// Of very many cases that differ little this is the step from one that is tried to the next: all are,
/// but with sanitizers, which take ten times as long, only a part.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int Stride = 7;
#else
inline constexpr int Stride = 1;
#endif

/// The items of all groups, each as "name>target".
inline Texts ItemsOf(const list::LaunchList& list) {
  Texts items;
  for (const list::LaunchGroup group : list::LaunchGroups) {
    const list::GroupBoxes& boxes = list.Of(group);
    for (int i = 0; i < boxes.Name.ListCount(); ++i) items.push_back(boxes.Name.List(i) + L">" + boxes.Path.List(i));
  }
  return items;
}

/// The settings and the launch list in one run of the program, on a computer with a copy of a disk. They are in
/// E:\Vantor\Vantor if the disk has E:\Vantor, which is a medium on its remembered computer, else in C:\Vantor\Vantor.
struct StoredList {
  explicit StoredList(const fake::FakeDisk& disk = fake::Computer().Disk) {
    Disk = disk;
    Environment.RunMode = Environment.MachineRemembered = disk.HasFolder(L"E:\\Vantor");
    Environment.MediaDriveLetter = Environment.RunMode ? L"E" : L"C";
    Environment.ProgramFolder = Environment.MediaDriveLetter + L":\\Vantor\\";
    start::SetDataFiles(Environment);
    Disk.AddFolder(Environment.DataFolder);
  }

  /// Returns the items, and the options.
  Texts Load() {
    Files.Restore();
    Files.LoadSettings();
    Page.Load();
    Texts loaded = ItemsOf(List);
    loaded.push_back(std::to_wstring(Settings.OptionMask));
    return loaded;
  }
  void Save() { Files.SaveLaunchList(List, 150, 300); }
  void Add(list::LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    List.Of(group).AddItem({name, path});
  }
  void Clear() {
    for (const list::LaunchGroup group : list::LaunchGroups) {
      List.Of(group).Name.Clear();
      List.Of(group).Path.Clear();
    }
  }

  fake::Computer Computer;
  fake::FakeDisk& Disk = Computer.Disk;
  form::Headless Desktop;
  start::Program Program{Desktop, Computer.Services()};
  state::Environment& Environment = Program.Environment;
  list::Settings& Settings = Program.Settings;
  list::ListFiles& Files = Program.ListFiles;
  list::ListPage& Page = Program.ListPage;
  list::LaunchList& List = Page.List;
};

}  // namespace vantor::test
