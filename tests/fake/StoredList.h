#pragma once

#include "fake/TestProgram.h"
#include "start/Places.h"

namespace vantor::test {

/// The files of one run of the program: the settings and the launch list, in C:\Vantor\Vantor or, on a remembered
/// computer, in E:\Vantor\Vantor. The disk belongs to the test, so that a later run finds the files.
struct StoredList : ProgramRun {
  explicit StoredList(fake::Computer& computer, bool onMedium = false) : ProgramRun(computer) {
    Environment.RunMode = Environment.MachineRemembered = onMedium;
    Environment.MediaDriveLetter = onMedium ? L"E" : L"C";
    Environment.ProgramFolder = Environment.MediaDriveLetter + L":\\Vantor\\";
    start::SetDataFiles(Environment);
    computer.Disk.AddFolder(Environment.DataFolder);
  }
  void Load() {
    Files.Restore();
    Files.LoadSettings();
    Page.Load();
  }
  void Save() { Files.SaveLaunchList(List, 150, 300); }
  void RemoveFirst(list::LaunchGroup group) {
    List.Of(group).Name.RemoveItem(0);
    List.Of(group).Path.RemoveItem(0);
  }

  state::Environment& Environment = Program.Environment;
  list::Settings& Settings = Program.Settings;
  list::ListFiles& Files = Program.ListFiles;
};

}  // namespace vantor::test
