#include "start/Program.h"

#include <doctest/doctest.h>

#include <vector>

#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "message/frmMessage.h"

namespace vantor::start {
namespace {

constexpr char FirstSettings[] = "2\r\n-1\r\n-1\r\n-1\r\n-1\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n";
constexpr char ReadyMedia[] = "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n";

/// A computer, on which the program can be started once.
struct Computer {
  form::Headless Ui;
  fake::FakeServices Services;
  Program Started{Ui, Services.All()};
  std::vector<std::wstring> Told;  // the texts of the messages

  /// The next message is read and answered by typing. Escape answers what needs no text.
  void Expect(std::wstring_view typed = L"\x1b") {
    Ui.WhenModal([this, typed](form::Form& form) {
      Told.push_back(dynamic_cast<message::frmMessage&>(form).LabelMessage.Caption());
      if (typed == L"\x1b")
        Ui.Press(form::Key::Escape);
      else
        Ui.Type(typed);
    });
  }
  /// A settings file and a name make it a program that was used before.
  void UsedBefore(const std::string& settings = FirstSettings) {
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\Set.Orbel", settings);
    Services.Disk.AddFile(L"C:\\Vantor\\Vantor\\User.Orbel", "\"Ada\"\r\n");
  }
  void RunFrom(wchar_t letter, int driveType) {
    Services.Disk.AddDrive(letter, driveType);
    Services.System.Program = std::wstring(1, letter) + L":\\Tools";
    Services.Disk.AddFolder(Services.System.Program);
  }
  /// Runs the start sequence. Returns whether the bar is there then.
  bool Start() {
    Started.Main();
    CHECK(Ui.ModalScriptsDone());
    CHECK(Started.frmMain.Visible() != Ui.Ended());
    return Started.frmMain.Visible();
  }
  [[nodiscard]] const std::string& Bytes(std::wstring_view path) { return Services.Disk.Bytes(path); }
};

TEST_CASE("A settings file that can't be read is no first start and is not replaced") {
  Computer computer;
  computer.UsedBefore("7\r\n-1");
  REQUIRE(computer.Start());
  CHECK(computer.Started.Settings.OptionMask == 7);
  CHECK(computer.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel") == "7\r\n-1");
}

TEST_CASE("Nothing to write to does not keep the program from starting") {
  Computer computer;
  computer.Services.Disk.Drive(L'C').WriteProtected = true;
  computer.Expect(L"\r");
  computer.Expect();
  CHECK(computer.Start());
  CHECK(computer.Started.MessageState.UserName == L"myFriend");
}

TEST_CASE("The program refuses where it can't run, before anything is loaded or written") {
  const struct {
    int Width, Height, DriveType;
    std::wstring_view Text;  // "" for none
  } cases[] = {
      {12000, 9000, 2, L""},
      {11985, 9000, 2, L"Screen resolution must be"},
      {12000, 8985, 2, L"Screen resolution must be"},
      {15360, 11520, 0, L"The Program encountered a problem"},
      {15360, 11520, 3, L"The Program encountered a problem"},
      {15360, 11520, 4, L"This Program runs from Removable Media, such as"},
  };
  for (const auto& c : cases) {
    Computer computer;
    computer.Ui.Desktop.Bounds = {0, 0, c.Width, c.Height};
    computer.UsedBefore();
    computer.Services.Disk.Drive(L'C').Type = c.DriveType;
    if (!c.Text.empty()) computer.Expect();
    CHECK(computer.Start() == c.Text.empty());
    if (c.Text.empty()) continue;
    CHECK(computer.Told.at(0).starts_with(c.Text));
    CHECK_FALSE((computer.Started.frmMain.Loaded() || computer.Started.frmChoose.Loaded()));
    CHECK(computer.Services.Disk.Written.empty());
  }
}

TEST_CASE("Inside the Windows folder, or with none known, the start goes on") {
  for (const auto* windows : {L"c:\\vantor", L"C:\\VANTOR\\", L"C:\\Van", L""}) {
    Computer computer;
    computer.UsedBefore();
    computer.Services.System.Windows = windows;
    CHECK(computer.Start());
  }
}

TEST_CASE("A second copy hands over to the first, or goes on when that has no window") {
  for (const bool hasWindow : {true, false}) {
    Computer computer;
    computer.UsedBefore();
    computer.Services.System.Previous = true;
    computer.Services.System.PreviousHasWindow = hasWindow;
    CHECK(computer.Start() != hasWindow);
    std::vector<std::wstring> calls{L"title Vantor Orbel", L"title BypassThisInstance", L"activate Vantor Orbel"};
    if (!hasWindow) calls.emplace_back(L"title Vantor Orbel");
    CHECK(computer.Services.System.Calls == calls);
  }
}

TEST_CASE("A medium whose settings file is gone starts as for the first time") {
  Computer computer;
  computer.RunFrom(L'E', 1);
  computer.Services.Disk.AddFile(L"E:\\Tools\\Vantor\\MediaSet.Orbel", ReadyMedia);
  computer.Expect();
  REQUIRE(computer.Start());
  CHECK(computer.Told.at(0).starts_with(L"If you missed it"));
  CHECK(computer.Bytes(L"E:\\Tools\\Vantor\\Set.Orbel") == FirstSettings);
}

TEST_CASE("A first run that can't write is refused, and told apart from a medium in use at the next start") {
  for (int writes = 0; writes < 4; ++writes) {
    Computer computer;
    computer.RunFrom(L'E', 1);
    computer.Services.Disk.FailWritesAfter(writes);
    computer.Expect();
    CHECK_FALSE(computer.Start());
    CHECK(computer.Told.at(0).starts_with(L"There was problem writing Data"));

    Computer next;
    next.Services.Disk = computer.Services.Disk;
    next.Services.System.Program = L"E:\\Tools";
    next.Services.Disk.FailNoWrites();
    const bool triesAgain = writes < 2;  // the folder is missing or empty
    if (triesAgain) next.Expect(L"Ada\r");
    next.Expect();
    CHECK(next.Start() == triesAgain);
    if (!triesAgain) CHECK(next.Told.at(0).starts_with(L"To run this Program from a Removable Media there"));
  }
}

TEST_CASE("A medium with data but without its own settings must be set up anew") {
  Computer computer;
  computer.RunFrom(L'E', 1);
  computer.Services.Disk.AddFile(L"E:\\Tools\\Vantor\\ListWeb.Orbel", "");
  computer.Expect();
  CHECK_FALSE(computer.Start());
  CHECK(computer.Told.at(0).starts_with(L"To run the Program from this Media"));
}

TEST_CASE("An error during the start is asked about, and a start without a bar ends") {
  struct : fake::FakeSystem {
    std::wstring WindowsDirectory() override { throw 1; }
  } brokenSystem;
  fake::FakeServices services;
  form::Headless ui;
  const service::Services broken{services.DataFiles,  services.FileSystem, services.Language,
                                 services.Management, services.Programs,   services.ScriptShell,
                                 brokenSystem,        services.Processes,  services.WindowPicker};
  Program program(ui, broken);
  ui.WhenModal([&](form::Form& form) {
    CHECK(program.MessageState.CurrentMessageKey == L"Bug-Vantor-ActiveStart");
    form.InputClose();
  });
  program.Main();
  CHECK(ui.Ended());
  CHECK(ui.ModalScriptsDone());
}

}  // namespace
}  // namespace vantor::start
