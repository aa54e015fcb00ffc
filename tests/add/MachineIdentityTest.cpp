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

TEST_CASE("A computer whose identity can't be read is not the remembered one, and that is asked about") {
  fake::FakeServices services;
  services.Management.Identity.reset();
  services.Disk.AddFile(L"C:\\m", "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
  form::Headless ui;
  message::MessageState state;
  message::Messages messages(ui, state);
  ui.WhenModal([](form::Form& form) { form.InputClose(); });
  CHECK_FALSE(MachineMatches(services.All(), messages, L"C:\\m"));
  CHECK(ui.ModalScriptsDone());
}

}  // namespace
}  // namespace vantor::add
