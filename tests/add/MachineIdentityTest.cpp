#include "add/MachineIdentity.h"

#include <doctest/doctest.h>

#include "Desk.h"

namespace vantor::add {
namespace {

void UseMedium(Desk& desk) {
  desk.Environment.Files.Machine = L"C:\\Vantor\\Machine.Orbel";
  desk.Environment.MachineUnknown = true;
}

TEST_CASE("The computer is known again by its disk C:, and what can't be read is asked about") {
  enum class Expected { Unknown, Remembered, Other, Asked };
  const struct {
    const char* File;  // null: none
    Expected Result;
  } cases[] = {
      {nullptr, Expected::Unknown},
      {"3\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Remembered},
      {"2\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n80023715841\r\n", Expected::Other},
      {"\"3\"\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"x\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n", Expected::Asked},
      {"", Expected::Asked},
  };
  for (const auto& c : cases) {
    CAPTURE(c.File);
    Desk desk;
    UseMedium(desk);
    std::wstring told;
    if (c.File != nullptr) desk.Services.Disk.AddFile(desk.Environment.Files.Machine, c.File);
    if (c.Result == Expected::Asked) desk.Expect(told);
    IdentifyMachine(desk.Services.All(), desk.Messages, desk.Environment);
    CHECK((told.find(L"Bug-Vantor-DeclareOwnerOnMedia") != told.npos) == (c.Result == Expected::Asked));
    CHECK(desk.Environment.MachineUnknown == (c.Result == Expected::Unknown));
    CHECK(desk.Environment.MachineRemembered == (c.Result == Expected::Remembered));
  }
}

TEST_CASE("An identity that can't be read is asked about at the start; one that takes too long is no identity") {
  Desk desk;
  UseMedium(desk);
  std::wstring told;
  desk.Services.Disk.AddFile(desk.Environment.Files.Machine, "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
  desk.Services.Management.Identity.reset();
  CHECK_FALSE(MachineMatches(desk.Services.All(), desk.Messages, desk.Environment.Files.Machine));
  desk.Services.Management.Refuses = true;
  desk.Expect(told);
  CHECK_FALSE(MachineMatches(desk.Services.All(), desk.Messages, desk.Environment.Files.Machine));
  CHECK(told.find(L"Bug-Vantor-DeclareOwnerOnMedia") != std::wstring::npos);
}

TEST_CASE("Remembering the computer writes its identity, and a computer that can't be remembered stays unknown") {
  Desk desk;
  UseMedium(desk);
  std::wstring told;
  bool remembers = false;
  SUBCASE("at once") { remembers = true; }
  SUBCASE("in silence while the service does not answer") { desk.Services.Management.Identity.reset(); }
  SUBCASE("with a message when it refuses") {
    desk.Services.Management.Refuses = true;
    desk.Expect(told);
  }
  SUBCASE("with a message when the medium is full") {
    desk.Services.Disk.FailWritesAfter(0);
    desk.Expect(told);
  }
  const bool speaks = !desk.Ui.ModalScriptsDone();
  CHECK(RememberMyComputer(desk.Services.All(), desk.Messages, desk.Environment) == remembers);
  CHECK(told == (speaks ? L"Could not save data for identifying this machine. Reason undetermined" : L""));
  CHECK(desk.Environment.MachineUnknown != remembers);
  CHECK(desk.Environment.MachineRemembered == remembers);
  if (!remembers) return;
  CHECK(desk.Services.Disk.Bytes(desk.Environment.Files.Machine) == "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n");
}

}  // namespace
}  // namespace vantor::add
