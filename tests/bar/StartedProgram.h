#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "start/Program.h"

namespace vantor::test {

/// The whole program as the user has it after a start that is not the first, on C: in fixed-disk mode.
struct StartedProgram {
  fake::FakeServices Services;
  form::Headless Desktop;
  start::Program Program{Desktop, Services.All()};
  bar::frmMain& Main = Program.frmMain;
  list::frmChoose& Choose = Program.frmChoose;
  command::CommandState& State = Program.CommandState;
  std::vector<std::wstring> Told;  // the texts of the messages

  explicit StartedProgram(std::string_view optionMask = "2", std::string_view place = "0\r\n0",
                          const std::vector<std::wstring_view>& files = {}) {
    for (const std::wstring_view file : files) Services.Disk.AddFile(file);
    const std::string noRecords = "\r\n-1\r\n-1\r\n-1\r\n-1\r\n";
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\Set.Orbel",
                          std::string(optionMask) + noRecords + std::string(place) + "\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n");
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\User.Orbel", "\"Ada\"\r\n");
    Program.Main();
  }

  void Add(list::LaunchGroup group, std::wstring_view name, std::wstring_view path) {
    Choose.List.Of(group).AddItem({name, path});
  }
  /// Types a line in the place of what stands in the box.
  void Type(std::wstring_view line) {
    Main.TextMain.SetText(L"");
    Main.TextMain.SetFocus();
    Desktop.Type(line);
  }
  /// The user reads the next message and closes it.
  void ExpectMessage() {
    Desktop.WhenModal([this](form::Form& dialog) {
      Told.push_back(Program.MessageState.MessageBody);
      dialog.InputClose();
    });
  }
  /// All that was started since the last call.
  std::vector<std::wstring> TakeStarts() {
    std::vector<std::wstring> starts;
    const auto take = [&](std::wstring_view how, std::vector<std::wstring>& from) {
      for (const auto& target : from) starts.push_back(std::wstring(how) + target);
      from.clear();
    };
    take(L"run ", Services.Programs.CommandLines);
    take(L"shell ", Services.ScriptShell.Runs);
    take(L"mail ", Services.Programs.ShellOpened);
    take(L"call ", Services.Programs.Calls);
    return starts;
  }
};

}  // namespace vantor::test
