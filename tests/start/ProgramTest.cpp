#include "start/Program.h"

#include <doctest/doctest.h>

#include "fake/TestProgram.h"

namespace vantor::start {
namespace {

using test::TestProgram;
using test::Texts;

constexpr char FirstSettings[] = "2\r\n-1\r\n-1\r\n-1\r\n-1\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n";

/// On a stick that the program has never run from.
struct OnMedium : TestProgram {
  OnMedium() {
    Computer.Home = L"E:\\Tools";
    Computer.Disk.AddFolder(Computer.Home);
  }
};

TEST_CASE("a settings file that can't be read is no first start and is not replaced") {
  TestProgram program;
  program.Computer.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel") = "7\r\n-1";
  REQUIRE(program.Start());
  CHECK(program.Program.Settings.OptionMask == 7);
  CHECK(program.Computer.Disk.Bytes(L"C:\\Vantor\\Vantor\\Set.Orbel") == "7\r\n-1");
}

TEST_CASE("nothing to write to does not keep the program from starting") {
  TestProgram program;
  program.Computer.Home = L"D:\\Work";
  program.Computer.Disk.Drive(L'D').WriteProtected = true;
  program.ExpectTyping(L"\r");
  program.Expect();
  CHECK(program.Start());
  CHECK(program.Program.MessageState.UserName == L"myFriend");
}

TEST_CASE("the program refuses where it can't run, before anything is loaded or written") {
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
    CAPTURE(&c - cases);
    TestProgram program;
    program.Desktop.Desktop.Bounds = {0, 0, c.Width, c.Height};
    program.Computer.Disk.Drive(L'C').Type = c.DriveType;
    if (!c.Text.empty()) program.Expect();
    CHECK(program.Start() == c.Text.empty());
    if (c.Text.empty()) continue;
    CHECK(program.Told.at(0).starts_with(c.Text));
    CHECK_FALSE((program.Main.Loaded() || program.Choose.Loaded()));
    CHECK(program.Computer.Disk.Written.empty());
  }
}

TEST_CASE("inside the Windows folder, or with none known, the start goes on") {
  for (const auto* windows : {L"c:\\vantor", L"C:\\VANTOR\\", L"C:\\Van", L""}) {
    TestProgram program;
    program.Computer.Windows = windows;
    CHECK(program.Start());
  }
}

TEST_CASE("a second copy hands over to the first, or goes on when that has no window") {
  for (const bool hasWindow : {true, false}) {
    TestProgram program;
    program.Computer.Previous = true;
    if (!hasWindow) program.Computer.Let("ActivateInstance", fake::Outcome::Fails);
    CHECK(program.Start() != hasWindow);
    Texts titles{L"Vantor Orbel", L"BypassThisInstance"};
    if (!hasWindow) titles.emplace_back(L"Vantor Orbel");
    CHECK(program.Computer.Titles == titles);
  }
}

TEST_CASE("a first run that can't write is refused, and told apart from a medium in use at the next start") {
  OnMedium whole;
  whole.ExpectTyping(L"Ada\r");
  whole.Expect();
  REQUIRE(whole.Start());
  CHECK(whole.Computer.Disk.Bytes(L"E:\\Tools\\Vantor\\Set.Orbel") == FirstSettings);
  // What the disk counts: a call, and the bytes that it writes.
  constexpr std::size_t Folder = 1;
  constexpr std::size_t MediaSet = sizeof "'Vantor Media 1'\r\n'Setup'\r\n''\r\n";
  for (std::size_t bytes = 0; bytes < Folder + 2 * MediaSet + sizeof FirstSettings; bytes += 4) {
    CAPTURE(bytes);
    OnMedium program;
    program.Computer.Disk.Break(fake::FakeDisk::Fault::Pulled, bytes);
    program.Expect();
    CHECK_FALSE(program.Start());
    CHECK(program.Told.at(0).starts_with(L"There was problem writing Data"));

    OnMedium next;
    next.Computer.Disk = program.Computer.Disk;
    next.Computer.Disk.Break(fake::FakeDisk::Fault::None, 0);
    next.Computer.Disk.Drive(L'E').Ready = true;
    const bool triesAgain = bytes < Folder + MediaSet;
    if (triesAgain) next.ExpectTyping(L"Ada\r");
    next.Expect();
    CHECK(next.Start() == triesAgain);
    if (!triesAgain) CHECK(next.Told.at(0).starts_with(L"To run this Program from a Removable Media there"));
  }
}

TEST_CASE("a medium with lists needs its own settings, and one without options starts as for the first time") {
  OnMedium foreign;
  foreign.Computer.Disk.AddFile(L"E:\\Tools\\Vantor\\ListWeb.Orbel");
  foreign.Expect();
  CHECK_FALSE(foreign.Start());
  CHECK(foreign.Told.at(0).starts_with(L"To run the Program from this Media"));

  OnMedium own;
  own.Computer.Disk.AddFile(L"E:\\Tools\\Vantor\\MediaSet.Orbel", "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Ada\"\r\n");
  own.Expect();
  REQUIRE(own.Start());
  CHECK(own.Told.at(0).starts_with(L"If you missed it"));
  CHECK(own.Computer.Disk.Bytes(L"E:\\Tools\\Vantor\\Set.Orbel") == FirstSettings);
}

TEST_CASE("an error during the start is asked about, and a start without a bar ends") {
  TestProgram program;
  program.Computer.Let("WindowsDirectory", fake::Outcome::Throws);
  program.Expect();
  CHECK_FALSE(program.Start());
  CHECK(program.Told.at(0).find(L"Bug-Vantor-ActiveStart") != std::wstring::npos);
  CHECK(program.Desktop.Ended());
}

}  // namespace
}  // namespace vantor::start
