#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bar/frmMain.h"
#include "fake/FakeServices.h"
#include "form/Headless.h"

namespace vantor::test {

/// A bar on a desktop without windows, wired as the program wires it, on C: in fixed-disk mode.
struct TestBar {
  fake::FakeServices Fakes;
  form::Headless Desktop;
  start::Environment Environment;
  message::MessageState MessageState;
  message::Messages Messages{Desktop, MessageState};
  list::Settings Settings;
  options::OptionFlags Options{0, 1, 0};
  command::CommandState State;
  list::ListFiles ListFiles{Fakes.All(), Environment, Settings};
  list::frmChoose Choose{Desktop, ListFiles, Fakes.Language, Messages};
  command::Starters Starters{Fakes.Programs, Fakes.ScriptShell};
  bar::frmMain Main{Desktop,
                    {Fakes.All(), Environment, Messages, Settings, Options, Choose, ListFiles, State, Starters}};

  TestBar() {
    Environment.WindowsFolder = L"C:\\WINDOWS\\";
    Environment.MediaDriveLetter = L"C";
    Environment.DataFolder = L"C:\\Vantor\\Vantor";
    Environment.Files.Set = Environment.DataFolder + L"\\Set.Orbel";
    Environment.Files.ListFile = Environment.DataFolder + L"\\ListFile.Orbel";
    Environment.Files.ListFold = Environment.DataFolder + L"\\ListFold.Orbel";
    Environment.Files.ListProg = Environment.DataFolder + L"\\ListProg.Orbel";
    Environment.Files.ListWeb = Environment.DataFolder + L"\\ListWeb.Orbel";
    Fakes.Disk.AddFolder(Environment.DataFolder);
    Messages.Hooks.PauseOnTop = [this] { Main.PauseOnTop(); };
    Messages.Hooks.ResumeOnTop = [this] { Main.ResumeOnTop(); };
  }

  void Show() {
    Main.Show();
    Choose.Load();
  }
  void Add(list::LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    Choose.List.Of(group).AddItem(name, path);
  }
  /// Types a line in the place of what stands in the box.
  void Type(std::wstring_view line) {
    Main.TextMain.SetText(L"");
    Main.TextMain.SetFocus();
    Desktop.Type(line);
  }
  /// The user reads the next message and closes it; its text goes to `Shown`.
  void ExpectMessage() {
    Desktop.WhenModal([this](form::Form& dialog) {
      Shown.push_back(MessageState.MessageBody);
      dialog.InputClose();
    });
  }
  std::vector<std::wstring> Shown;

  /// All that was started since the last call, in one text a start.
  std::vector<std::wstring> TakeStarts() {
    std::vector<std::wstring> starts;
    const auto take = [&](std::wstring_view how, std::vector<std::wstring>& from) {
      for (const auto& target : from) starts.push_back(std::wstring(how) + target);
      from.clear();
    };
    take(L"run ", Fakes.Programs.CommandLines);
    take(L"shell ", Fakes.ScriptShell.Runs);
    take(L"mail ", Fakes.Programs.ShellOpened);
    take(L"call ", Fakes.Programs.Calls);
    return starts;
  }
};

}  // namespace vantor::test
