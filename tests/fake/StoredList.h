#pragma once

#include "fake/TestProgram.h"
#include "start/Places.h"

namespace vantor::test {

/// One run of the program as far as its files go: the settings and the launch list, in C:\Vantor\Vantor or, on a
/// remembered computer, in E:\Vantor\Vantor. The disk is the test's, so that a later run finds the files.
struct StoredList {
  explicit StoredList(fake::Computer& computer, bool onMedium = false)
      : Files(computer.Services(), Environment, Settings), Choose(Desktop, Files, computer, Messages) {
    Environment.RunMode = Environment.MachineRemembered = onMedium;
    Environment.MediaDriveLetter = onMedium ? L"E" : L"C";
    Environment.ProgramFolder = Environment.MediaDriveLetter + L":\\Vantor\\";
    start::SetDataFiles(Environment);
    computer.Disk.AddFolder(Environment.DataFolder);
  }
  void Load() {
    Files.Restore();
    Files.LoadSettings();
    Choose.Load();
  }
  void Save() { Files.SaveLaunchList(Choose.List, 150, 300); }
  void Add(list::LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    Choose.List.Of(group).AddItem({name, path});
  }
  void RemoveFirst(list::LaunchGroup group) {
    Choose.List.Of(group).Name.RemoveItem(0);
    Choose.List.Of(group).Path.RemoveItem(0);
  }

  form::Headless Desktop;
  state::Environment Environment;
  list::Settings Settings;
  list::ListFiles Files;
  message::MessageState MessageState;
  message::Messages Messages{Desktop, MessageState};
  list::frmChoose Choose;
};

}  // namespace vantor::test
