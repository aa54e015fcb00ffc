#pragma once

#include <string>
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
  std::vector<std::wstring> Told;  // the texts of the messages

  StartedProgram() {
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\Set.Orbel",
                          "2\r\n-1\r\n-1\r\n-1\r\n-1\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n");
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\User.Orbel", "\"Ada\"\r\n");
    Program.Main();
  }

  /// The user reads the next message and closes it.
  void ExpectMessage() {
    Desktop.WhenModal([this](form::Form& dialog) {
      Told.push_back(Program.MessageState.MessageBody);
      dialog.InputClose();
    });
  }
};

}  // namespace vantor::test
