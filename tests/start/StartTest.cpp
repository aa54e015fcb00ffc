#include <doctest/doctest.h>

#include "fake/TestProgram.h"
#include "start/Companions.h"
#include "start/Places.h"

namespace vantor::start {
namespace {

using test::TestProgram;
using test::Texts;

constexpr char FirstSettings[] = "2\r\n-1\r\n-1\r\n-1\r\n-1\r\n0\r\n0\r\n\"\"\r\n-1\r\n-1\r\n-1\r\n";

/// On a stick from which the program has never run.
struct OnMedium : TestProgram {
  OnMedium() { Computer.Home = L"E:\\Work"; }
};

TEST_CASE("folders have a root, and the Windows folder ends in one backslash") {
  fake::Computer computer;
  CHECK(DriveRootOf(L"E:\\") == L"E:\\");
  CHECK(DriveRootOf(L"E:\\Work\\x\\") == L"E:\\");
  CHECK(DriveRootOf(L"\\\\server\\share\\") == L"\\\\server\\share\\");
  CHECK(DriveRootOf(L"\\\\server\\share\\a\\b\\") == L"\\\\server\\share\\");
  const std::wstring longest = L"C:\\" + std::wstring(251, L'w');
  const Texts folders[] = {
      {L"C:\\Windows", L"C:\\Windows\\"}, {L"D:\\", L"D:\\"}, {longest, longest + L"\\"}, {longest + L"w", L""}};
  for (const Texts& folder : folders) {
    computer.Windows = folder[0];
    state::Environment environment;
    GetWindowsFolder(computer, computer, environment);
    CHECK(environment.WindowsFolder == folder[1]);
    CHECK(environment.WindowsFolderUpper == computer.Upper(folder[1]));
    CHECK(environment.WindowsDriveLetter == folder[1].substr(0, 1));
  }
}

TEST_CASE("the maker's programs are found beside this one and in the drive's root, each once, the help last") {
  const struct {
    std::wstring Program;
    Texts Files;
    Texts Expected;  // the paths; the names are those of the files
  } rows[] = {
      {L"C:\\Vantor", {L"C:\\Orbel\\Draw\\Other.exe", L"C:\\Orbel\\Draw.exe", L"C:\\Orbels\\Draw\\Draw.exe"}, {}},
      {L"C:\\Vantor",
       {L"C:\\Vantor\\VantorHelp.exe", L"C:\\ORBEL\\Write\\write.EXE", L"C:\\Orbel\\Draw it\\Draw it.exe"},
       {L"C:\\Orbel\\Draw it\\Draw it.exe", L"C:\\Orbel\\Write\\Write.exe", L"C:\\Vantor\\VantorHelp.exe"}},
      // Both ways lead to the same folder, which contains this program.
      {L"C:\\oRBEL\\Vantor",
       {L"C:\\oRBEL\\Vantor\\Vantor.exe", L"C:\\oRBEL\\Draw\\Draw.exe"},
       {L"C:\\Orbel\\Draw\\Draw.exe"}},
      {L"C:\\Apps\\orbel\\Vantor",
       {L"C:\\Apps\\Orbel\\Draw\\Draw.exe", L"C:\\Apps\\Orbel\\Zip\\Zip.exe", L"C:\\Orbel\\DRAW\\Draw.exe"},
       {L"C:\\Orbel\\DRAW\\DRAW.exe", L"C:\\Apps\\orbel\\Zip\\Zip.exe"}},
      {L"C:\\Apps\\MyOrbel\\Vantor", {L"C:\\Apps\\MyOrbel\\Draw\\Draw.exe"}, {}},
      {L"C:\\", {L"C:\\VantorHelp.exe", L"C:\\Draw\\Draw.exe"}, {L"C:\\VantorHelp.exe"}},
  };
  for (const auto& row : rows) {
    CAPTURE(&row - rows);
    TestProgram program;
    program.Computer.Home = row.Program;
    for (const std::wstring& file : row.Files) program.Computer.Disk.AddFile(file);
    program.Program.frmMove.Load();
    Texts paths;
    for (const state::Companion& companion : FindCompanions(program.Computer.Services(), program.Program.Environment)) {
      paths.push_back(companion.Path);
      CHECK(companion.Path.ends_with(L'\\' + companion.Name + L".exe"));
    }
    CHECK(paths == row.Expected);
  }
  // If somebody else may have put it there, it is accepted only on a medium.
  for (const auto* shared : {L"C:\\Orbel\\", L"C:\\Orbel\\Draw\\", L"C:\\Orbel\\Draw\\Draw.exe"}) {
    TestProgram program;
    program.Computer.Disk.AddFile(L"C:\\Orbel\\Draw\\Draw.exe");
    program.Computer.Shared = {shared};
    program.Program.frmMove.Load();
    for (const bool onMedium : {false, true}) {
      program.Program.Environment.RunMode = onMedium;
      CHECK(FindCompanions(program.Computer.Services(), program.Program.Environment).empty() != onMedium);
    }
  }
}

TEST_CASE("the program refuses where it can't run, before anything is loaded or written") {
  const struct {
    int Width, Height, DriveType;
    std::wstring_view Text;  // "" for none
    double TwipsPerPixel = 15;
  } cases[] = {
      {12000, 9000, 2, L""},
      {11985, 9000, 2, L"Screen resolution must be"},
      {12000, 8985, 2, L"Screen resolution must be"},
      {5333, 4000, 2, L"", 1440 / 216.0},
      {6000, 4493, 2, L"Screen resolution must be", 7.5},
      {15360, 11520, 0, L"The Program encountered a problem"},
      {15360, 11520, 3, L"The Program encountered a problem"},
      {15360, 11520, 4, L"This Program runs from Removable Media, such as"},
  };
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    TestProgram program;
    program.Desktop.Desktop = {{0, 0, c.Width, c.Height}, {0, 0, c.Width, c.Height}, c.TwipsPerPixel, c.TwipsPerPixel};
    program.Computer.Disk.Drives[L'C'].Type = c.DriveType;
    if (!c.Text.empty()) program.Expect();
    CHECK(program.Start() == c.Text.empty());
    if (c.Text.empty()) continue;
    CHECK(program.Told.at(0).starts_with(c.Text));
    CHECK_FALSE((program.Main.Loaded() || program.Choose.Loaded()));
    CHECK(program.Computer.Disk.Written.empty());
  }
  // A share is recognised without contacting it, and what has no letter is not a drive of this computer.
  for (const auto* home : {L"\\\\server\\share\\Vantor", L"\\\\?\\Volume{1}\\Vantor"}) {
    TestProgram program;
    program.Computer.Home = home;
    program.Expect();
    CHECK_FALSE(program.Start());
    CHECK(program.Told.at(0).starts_with(L"The Program encountered a problem"));
  }
  // Inside the Windows folder, or if that is unknown, the start continues.
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
    Texts titles{L"title Vantor Orbel", L"title BypassThisInstance"};
    if (!hasWindow) titles.push_back(titles[0]);
    CHECK(program.Computer.Asked == titles);
  }
}

TEST_CASE("a first run from a medium that can't write is refused, and takes back what it made if it can") {
  // The disk counts each call and the bytes that it writes.
  constexpr std::size_t Calls = 2;
  const std::string setup = "\"Vantor Media 1\"\r\n\"Setup\"\r\n\"\"\r\n";
  using Fault = fake::FakeDisk::Fault;
  for (const Fault fault : {Fault::Pulled, Fault::Full}) {
    for (std::size_t bytes = 0; bytes < setup.size() + sizeof FirstSettings; bytes += 4) {
      CAPTURE(bytes);
      OnMedium program;
      fake::FakeDisk& disk = program.Computer.Disk;
      disk.Break(fault, bytes + (fault == Fault::Full ? disk.Size() : 0));
      program.Expect();
      CHECK_FALSE(program.Start());
      CHECK(program.Told.at(0).starts_with(L"There was problem writing Data"));

      OnMedium next;
      next.Computer.Disk = disk;
      next.Computer.Disk.Break(Fault::None, 0);
      next.Computer.Disk.Drives[L'E'].Ready = true;
      const bool triesAgain = fault == Fault::Full || bytes < Calls + setup.size();
      if (triesAgain) next.ExpectTyping(L"Ada\r");
      next.Expect();
      CHECK(next.Start() == triesAgain);
      if (!triesAgain) CHECK(next.Told.at(0).starts_with(L"To run this Program from a Removable Media there"));
    }
  }
  // Ended during its first write, to the file next to it or in place.
  for (const auto* name : {L"MediaSet.Orbel", L"MediaSet.Orbel~"}) {
    for (std::size_t length = 0; length < setup.size(); length += 6) {
      OnMedium cut;
      cut.Computer.Disk.AddFile(std::wstring(L"E:\\Work\\Vantor\\") + name, setup.substr(0, length));
      cut.ExpectTyping(L"Ada\r");
      cut.Expect();
      CHECK(cut.Start());
    }
  }
}

}  // namespace
}  // namespace vantor::start
