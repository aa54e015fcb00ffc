#include <doctest/doctest.h>

#include "add/clsActiveProcess.h"
#include "fake/TestProgram.h"
#include "list/MachineIdentity.h"

namespace vantor::add {
namespace {

using fake::Outcome;
using service::WindowId;
using test::Texts;

constexpr std::wstring_view NotFixed = L"You can add Program, File and Folder to Launch List only if those are in a";
constexpr char OwnIdentity[] = "3\r\n\"1A2B3C4D\"\r\n80023715840\r\n";

/// The add box of a program that runs, open at a folder with a program and a file.
struct AddBox : test::StartedProgram {
  AddBox() {
    Desktop.Press(form::Key::F2);
    REQUIRE(Box.DirWork.SetPath(L"C:\\Work"));
  }
  void Pick(std::wstring_view file) {
    const auto& files = Box.FileWork.Entries();
    const auto found = std::find(files.begin(), files.end(), file);
    REQUIRE(found != files.end());
    Box.FileWork.InputSelect(static_cast<int>(found - files.begin()));
  }
  void DragTo(WindowId window) {
    Box.CommandFindPath.InputMouseDown(form::MouseButton::Left);
    Computer.UnderCursor = window;
    Desktop.Advance(100);
  }
  void Release() { Box.CommandFindPath.InputMouseUp(form::MouseButton::Left); }
  void Find(WindowId window) {
    DragTo(window);
    Release();
  }
  [[nodiscard]] std::size_t Added() const { return test::ItemsOf(List).size(); }

  frmBrowse& Box = Program.frmBrowse;
};

TEST_CASE("a snapshot's records are numbered in their order") {
  fake::Computer computer;
  for (std::uint32_t index = 2; index <= 45; ++index) computer.AddProcess(index * 4, "p.exe");
  clsActiveProcess active(computer, computer);
  CHECK(active.GetActiveProcess() == 45);
  for (const int index : {20, 21, 40, 45}) CHECK(active.th32ProcessID(index) == static_cast<std::uint32_t>(index) * 4);
  CHECK(active.szExeFile(45) == std::wstring(L"p.exe").append(255, L'\0'));
  CHECK_THROWS_AS((void)active.dwFlags(46), std::out_of_range);
}

TEST_CASE("the finder puts the program's path into the box, and its drive type counts once") {
  AddBox adding;
  adding.Computer.Managed[1].ExecutablePath = L"E:\\Work\\Tool.EXE";
  adding.DragTo(WindowId{1});
  CHECK((adding.Computer.Target && adding.Computer.Marked == WindowId{1}));
  adding.Release();
  CHECK(adding.Box.TextAddPath.Text() == L"E:\\Work\\Tool.EXE");
  adding.Expect();
  adding.Desktop.Type(L"Tool\r");
  CHECK(adding.Told.at(0).starts_with(NotFixed));
  adding.Box.TextAddName.SetFocus();
  adding.Desktop.Type(L"\r");  // now the folder's own drive type counts
  CHECK(adding.Added() == 1);
  adding.Find(WindowId{1});
  adding.Pick(L"Tool.EXE");  // what the finder found is given up
  adding.Desktop.Type(L"Work\r");
  CHECK(adding.Added() == 2);

  adding.Computer.Let("ManagedProcesses", Outcome::Fails);
  adding.Computer.ImagePath = L"D:\\plain.exe";
  adding.Find(WindowId{1});
  CHECK(adding.Box.TextAddPath.Text() == L"D:\\plain.exe");
}

TEST_CASE("a drag that is broken off changes nothing, and the next one works") {
  AddBox adding;
  fake::Computer& computer = adding.Computer;
  adding.DragTo(WindowId{1});
  SUBCASE("by Escape") { adding.Desktop.Press(form::Key::Escape); }
  SUBCASE("by another program taking the mouse") {
    computer.Captured = WindowId{7};
    computer.ButtonDown = false;
    adding.Desktop.Advance(100);
    CHECK(computer.Captured == WindowId{7});
    computer.Captured = WindowId::None;
  }
  SUBCASE("by closing the box") {
    adding.Box.CommandAddCancel.DoClick();
    adding.Desktop.Press(form::Key::F2);
  }
  SUBCASE("by a place beyond the screen's numbers, which is asked about") {
    adding.Expect();
    computer.Cursor.X = 40000;
    adding.Desktop.Advance(100);
    CHECK(adding.Told.at(0).find(L"Bug-Vantor-FindExecutable") != std::wstring::npos);
    computer.Cursor.X = 0;
  }
  CHECK((!computer.Target && computer.Captured == WindowId::None && computer.Marked == WindowId::None));
  CHECK_FALSE(adding.Box.TimerFindPath.Enabled());
  adding.Release();
  CHECK(adding.Box.TextAddPath.Text().empty());
  CHECK(adding.Box.Visible());
  adding.Find(WindowId{1});
  CHECK(adding.Box.TextAddPath.Text() == L"C:\\Work\\Tool.EXE");
}

TEST_CASE("the computer is known again by its disk C:, and what can't be read is asked about") {
  enum class Expected { Unknown, Remembered, Other, Asked };
  const struct {
    const char* File = nullptr;  // none
    Expected Result = Expected::Unknown;
    Outcome Identity = Outcome::Works;
  } cases[] = {
      {nullptr, Expected::Unknown},
      {OwnIdentity, Expected::Remembered},
      {"3\r\n1A2B3C4D\r\n80023715840\r\n", Expected::Remembered},
      {"2\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n80023715841\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4E\"\r\n80023715840\r\n", Expected::Other},
      {"\"3\"\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"x\r\n\"1A2B3C4D\"\r\n80023715840\r\n", Expected::Other},
      {"3\r\n\"1A2B3C4D\"\r\n", Expected::Asked},
      {"", Expected::Asked},
      {OwnIdentity, Expected::Other, Outcome::Fails},
      {OwnIdentity, Expected::Asked, Outcome::Throws},
  };
  for (const auto& c : cases) {
    CAPTURE(&c - cases);
    test::TestProgram program;
    state::Environment& environment = program.Program.Environment;
    const service::Services services = program.Computer.Services();
    environment.Files.MachineIdentityFile = L"E:\\Machine.Orbel";
    program.Computer.Let("ReadDiskIdentity", c.Identity);
    if (c.File != nullptr) program.Computer.Disk.AddFile(L"E:\\Machine.Orbel", c.File);
    if (c.Result == Expected::Asked) program.Expect();
    list::IdentifyMachine(services, program.Program.Messages, environment);
    if (c.Result == Expected::Asked)
      CHECK(program.Told.at(0).find(L"Bug-Vantor-DeclareOwnerOnMedia") != std::wstring::npos);
    CHECK(environment.MachineUnknown == (c.Result == Expected::Unknown));
    CHECK(environment.MachineRemembered == (c.Result == Expected::Remembered));
    if (c.Result != Expected::Unknown) continue;

    // It can't be remembered in silence while the service does not answer, otherwise with a message.
    program.Computer.Let("ReadDiskIdentity", Outcome::Fails);
    CHECK_FALSE(list::RememberMyComputer(services, program.Program.Messages, environment));
    program.Computer.Let("ReadDiskIdentity", Outcome::Throws);
    program.Expect();
    CHECK_FALSE(list::RememberMyComputer(services, program.Program.Messages, environment));
    CHECK(program.Told == Texts{L"Could not save data for identifying this machine. Reason undetermined"});
    CHECK((environment.MachineUnknown && !environment.MachineRemembered));
    program.Computer.Decide = {};
    CHECK(list::RememberMyComputer(services, program.Program.Messages, environment));
    CHECK((!environment.MachineUnknown && environment.MachineRemembered));
    CHECK(program.Computer.Disk.Bytes(L"E:\\Machine.Orbel") == OwnIdentity);
  }
}

TEST_CASE("the box begins in the folder shown last if that is there, on a fixed drive; a share is not asked") {
  for (const auto* folder : {L"C:\\Gone", L"N:\\Work", L"E:\\Work", L"D:Work", L"\\\\host\\share", L""}) {
    test::TestProgram next;
    next.Program.Settings.RememberedBrowseFolder = folder;
    next.Program.Environment.ProgramFolder = L"C:\\Vantor\\";
    if (folder[0] == L'\\') next.Computer.Let("DriveType", Outcome::Throws);
    next.Program.frmBrowse.Load();
    CHECK(next.Program.frmBrowse.DirWork.Path() == L"C:\\Vantor");
    CHECK(next.Told.empty());
  }
}

}  // namespace
}  // namespace vantor::add
