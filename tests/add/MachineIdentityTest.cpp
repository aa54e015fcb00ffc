#include "add/MachineIdentity.h"

#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::add {
namespace {

using fake::Outcome;

constexpr char Own[] = "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n";

/// A program that runs from a medium, as far as that says which computer it knows.
struct OnMedium : test::TestProgram {
  start::Environment& Environment = Program.Environment;

  OnMedium() {
    Environment.Files.Machine = L"E:\\Machine.Orbel";
    Environment.MachineUnknown = true;
  }
};

TEST_CASE("the computer is known again by its disk C:, and what can't be read is asked about") {
  enum class Expected { Unknown, Remembered, Other, Asked };
  const struct {
    const char* File;  // null: none
    Expected Result;
    Outcome Identity = Outcome::Works;
  } cases[] = {
      {nullptr, Expected::Unknown},
      {Own, Expected::Remembered},
      {"2\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n80023715841\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4E\"\r\n80023715840\r\n", Expected::Other},
      {"\"3\"\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"x\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n", Expected::Asked},
      {"", Expected::Asked},
      {Own, Expected::Other, Outcome::Fails},
      {Own, Expected::Asked, Outcome::Throws},
  };
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    OnMedium program;
    program.Computer.Let("ReadDiskIdentity", c.Identity);
    if (c.File != nullptr) program.Computer.Disk.AddFile(program.Environment.Files.Machine, c.File);
    if (c.Result == Expected::Asked) program.Expect();
    IdentifyMachine(program.Computer.Services(), program.Program.Messages, program.Environment);
    if (c.Result == Expected::Asked)
      CHECK(program.Told.at(0).find(L"Bug-Vantor-DeclareOwnerOnMedia") != std::wstring::npos);
    CHECK(program.Environment.MachineUnknown == (c.Result == Expected::Unknown));
    CHECK(program.Environment.MachineRemembered == (c.Result == Expected::Remembered));
  }
}

TEST_CASE("remembering the computer writes its identity, and a computer that can't be remembered stays unknown") {
  const struct {
    Outcome Identity;
    bool WriteProtected, Speaks, Remembers;
  } cases[] = {{Outcome::Works, false, false, true},
               {Outcome::Fails, false, false, false},
               {Outcome::Throws, false, true, false},
               {Outcome::Works, true, true, false}};
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    OnMedium program;
    program.Computer.Let("ReadDiskIdentity", c.Identity);
    program.Computer.Disk.Drive(L'E').WriteProtected = c.WriteProtected;
    if (c.Speaks) program.Expect();
    CHECK(RememberMyComputer(program.Computer.Services(), program.Program.Messages, program.Environment) ==
          c.Remembers);
    CHECK(program.Told == (c.Speaks
                               ? test::Texts{L"Could not save data for identifying this machine. Reason undetermined"}
                               : test::Texts{}));
    CHECK(program.Environment.MachineUnknown != c.Remembers);
    CHECK(program.Environment.MachineRemembered == c.Remembers);
    if (c.Remembers) CHECK(program.Computer.Disk.Bytes(program.Environment.Files.Machine) == Own);
  }
}

}  // namespace
}  // namespace vantor::add
