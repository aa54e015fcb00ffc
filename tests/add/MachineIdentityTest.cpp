#include "add/MachineIdentity.h"

#include <doctest/doctest.h>

#include "fake/FakeServices.h"
#include "form/Headless.h"
#include "message/frmMessage.h"

namespace vantor::add {
namespace {

TEST_CASE("The computer is known again by its disk C:, and what can't be read is asked about") {
  enum class Expected { Unknown, Remembered, Other, Asked };
  const struct {
    const char* File;  // null: none
    Expected Result;
  } cases[] = {
      {nullptr, Expected::Unknown},
      {"3\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Remembered},
      {"3\n\"1A2B3C4D\"\n80023715840.0", Expected::Remembered},
      {"2\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1a2b3c4d\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n80023715841\r\n", Expected::Other},
      {"\"3\"\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"x\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n", Expected::Asked},
      {"3\r\n\"1A2B", Expected::Asked},
      {"", Expected::Asked},
  };
  for (const auto& c : cases) {
    CAPTURE(c.File);
    fake::FakeServices services;
    form::Headless ui;
    message::MessageState state;
    message::Messages messages(ui, state);
    start::Environment environment;
    environment.Files.Machine = L"C:\\Vantor\\Machine.Orbel";
    if (c.File != nullptr) services.Disk.AddFile(environment.Files.Machine, c.File);
    if (c.Result == Expected::Asked) {
      ui.WhenModal([&](form::Form& form) {
        CHECK(state.CurrentMessageKey == L"Bug-Vantor-DeclareOwnerOnMedia");
        form.InputClose();
      });
    }
    IdentifyMachine(services.All(), messages, environment);
    CHECK(ui.ModalScriptsDone());
    CHECK(environment.MachineUnknown == (c.Result == Expected::Unknown));
    CHECK(environment.MachineRemembered == (c.Result == Expected::Remembered));
  }
}

/// Services and messages, with the identity file on the medium.
struct Desk {
  fake::FakeServices Services;
  form::Headless Ui;
  message::MessageState State;
  message::Messages Messages{Ui, State};
  start::Environment Environment;
  std::wstring Told;

  Desk() {
    Environment.Files.Machine = L"C:\\Vantor\\Machine.Orbel";
    Environment.MachineUnknown = true;
  }
  void Expect() {
    Ui.WhenModal([this](form::Form& form) {
      Told = dynamic_cast<message::frmMessage&>(form).LabelMessage.Caption();
      form.InputClose();
    });
  }
};

TEST_CASE("An identity that can't be read is asked about at the start; one that takes too long is no identity") {
  Desk desk;
  desk.Services.Disk.AddFile(desk.Environment.Files.Machine, "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
  desk.Services.Management.Identity.reset();
  CHECK_FALSE(MachineMatches(desk.Services.All(), desk.Messages, desk.Environment.Files.Machine));
  desk.Services.Management.Refuses = true;
  desk.Expect();
  CHECK_FALSE(MachineMatches(desk.Services.All(), desk.Messages, desk.Environment.Files.Machine));
  CHECK(desk.Told.find(L"Bug-Vantor-DeclareOwnerOnMedia") != std::wstring::npos);
}

TEST_CASE("Remembering the computer writes its identity, which the next start knows again") {
  Desk desk;
  CHECK(RememberMyComputer(desk.Services.All(), desk.Messages, desk.Environment));
  CHECK(desk.Services.Disk.Bytes(desk.Environment.Files.Machine) == "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
  CHECK_FALSE(desk.Environment.MachineUnknown);
  CHECK(desk.Environment.MachineRemembered);
  desk.Environment.MachineRemembered = false;
  IdentifyMachine(desk.Services.All(), desk.Messages, desk.Environment);
  CHECK(desk.Environment.MachineRemembered);
}

TEST_CASE("A computer that can't be remembered stays unknown") {
  Desk desk;
  SUBCASE("in silence while the service does not answer") { desk.Services.Management.Identity.reset(); }
  SUBCASE("with a message when it refuses") {
    desk.Services.Management.Refuses = true;
    desk.Expect();
  }
  SUBCASE("with a message when the medium is full") {
    desk.Services.Disk.FailWritesAfter(0);
    desk.Expect();
  }
  const bool speaks = !desk.Ui.ModalScriptsDone();
  CHECK_FALSE(RememberMyComputer(desk.Services.All(), desk.Messages, desk.Environment));
  CHECK(desk.Told == (speaks ? L"Could not save data for identifying this machine. Reason undetermined" : L""));
  CHECK(desk.Environment.MachineUnknown);
  CHECK_FALSE(desk.Environment.MachineRemembered);
}

}  // namespace
}  // namespace vantor::add
