// desktop: --drive e:=floppy --drive f:=floppy --drive n:=network
// A list on a removable drive: what may be added to it, and where it goes with the drive.

#include <doctest/doctest.h>
#include <windows.h>

#include <winioctl.h>

#include <cstddef>
#include <fstream>

#include "desktop/AddBox.h"
#include "desktop/Input.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

const std::string NoMachineYet =
    "While Vantor runs from a Removable Media - it can add Program, File and Folder to Launch List only from it's own "
    "Drive and from fixed Hard Drive of only one selected machine.\r\n\r\n"
    "The selected machine need to be identified first.\r\n\r\n"
    "If this is the machine from which you want to add items to Launch List then please close this window by clicking "
    "'OK' button and then in the main window click on 'Preferences' button and then on 'Remember My Computer' button "
    "in the Preferences box.\r\n\r\n"
    "After doing so you should be able to add items to Launch List from this machine if those items are on a fixed "
    "Hard Disk.";
const std::string NotFixedHere =
    "From this machine you can add Program, File and Folder to Launch List but only if those are on a fixed Hard Disk. "
    "This one, that you are trying to add, doesn't seems to be on a fixed Hard Disk.";
const std::string OtherMachine =
    "While Vantor runs from a Removable Media - Program File and Folder if not on the same Media with Vantor, can be "
    "added to Launch List only From one machine.\r\n\r\n"
    "You have already indentifed a machine from which to add to Launch List. This is not that machine.";

/// Makes this another computer, as far as its disk C: tells: Wine reads the disk's serial number from a file when it
/// is told of the disk.
void GiveDiskSerial(const std::string& serial) {
  std::ofstream("C:\\.windows-serial") << serial << '\n';
  // Wine's mountmgr_unix_drive, and its IOCTL_MOUNTMGR_DEFINE_UNIX_DRIVE.
  struct UnixDrive {
    ULONG Size = sizeof(UnixDrive);
    ULONG Type = DRIVE_FIXED;
    ULONG FileSystem = 0;
    DWORD Serial = 0;
    ULONGLONG Device = 0;
    WCHAR Letter = L'c';
    USHORT MountPointOffset = offsetof(UnixDrive, MountPoint);
    USHORT DeviceOffset = 0;
    USHORT LabelOffset = 0;
    char MountPoint[16] = "../drive_c";
  } drive;
  const HANDLE manager =
      CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  DWORD returned = 0;
  DeviceIoControl(manager, CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS), &drive,
                  sizeof drive, nullptr, 0, &returned, nullptr);
  CloseHandle(manager);
  DWORD now = 0;
  REQUIRE(GetVolumeInformationW(L"C:\\", nullptr, 0, &now, nullptr, nullptr, nullptr, 0));
  REQUIRE(now == std::stoul(serial, nullptr, 16));
}

/// Checks the bytes of data files, each named without its ending.
void CheckDataFiles(const Folder& folder, const std::vector<std::pair<std::string, std::string>>& files) {
  for (const auto& file : files) {
    CAPTURE(file.first);
    CHECK(folder.Read("Vantor\\" + file.first + ".Orbel") == file.second);
  }
}

/// The button by which this computer is remembered, in the open preferences; null when it is not shown.
HWND RememberButton(const Program& program) {
  for (HWND panel : window::OfProcess(window::ProcessOf(program.Bar()))) {
    if (HWND button = window::Control(panel, "Button", "Remember My Computer")) return button;
  }
  return nullptr;
}

void CheckCompletion(Program& program, const std::string& code, const std::string& typed, const std::string& name) {
  program.AwaitBar();
  program.TypeLine(code + typed);
  CHECK_BECOMES(program.Line(), code + name);
}

const struct {
  std::string Option, Name, Code;
} Kinds[] = {{"Prog.", "Program", "p-"}, {"File", "File", "f-"}, {"Folder", "Folder", "d-"}};

/// Adds a program, a file, and the folder that they are in.
void AddAllKinds(const AddBox& box, const std::string& program, const std::string& file, const std::string& begin) {
  for (const auto& kind : Kinds) {
    box.Click(kind.Option);
    if (kind.Name != "Folder") box.Pick(kind.Name == "File" ? file : program);
    box.Add(begin + kind.Name);
    box.AwaitBanner(kind.Name);
  }
}

}  // namespace

TEST_CASE("a list on a stick goes with it, and what lies on a computer waits for that computer") {
  SKIP_UNLESS(UnderWine(), "a test desktop with two removable drives and a disk C: to change");
  constexpr char Home[] = "1A2B3C4D";
  constexpr char Elsewhere[] = "0BADCAFE";
  GiveDiskSerial(Home);
  const Folder disk("C:\\");
  const std::string diskName = disk.Path().substr(3);
  for (const char* name : {"tool.exe", "notes.txt"}) disk.Write(name, "");
  Folder stick("E:\\");
  for (const char* name : {"own.exe", "own.txt"}) stick.Write(name, "");
  std::ofstream("N:\\tool.exe").close();
  const std::string mediaSet = "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Anna\"\r\n";
  stick.Write("Vantor\\MediaSet.Orbel", mediaSet);
  stick.Write("Vantor\\Set.Orbel", Settings{.WebUpper = 0}.Bytes());
  stick.Write("Vantor\\ListWeb.Orbel", ListBytes({{"Site", "http://example.org/"}}));

  {
    Program program(stick);
    program.AwaitBar();
    const AddBox box(program);
    box.Open();
    AddAllKinds(box, "own.exe", "own.txt", "Own ");  // what is on the stick needs no computer
    // No computer is remembered.
    box.Click("Prog.");
    box.ChooseDrive('C');
    box.Enter(diskName);
    box.Pick("tool.exe");
    box.Add("Tool");
    program.ExpectMessage(NoMachineYet);
    CHECK(box.Path() == disk.Path("tool.exe"));
    CHECK(box.Name() == "Tool");
    input::Press(VK_F6);
    Await("the button, enabled", [&] { return IsWindowEnabled(RememberButton(program)); });
    input::Click(window::Middle(RememberButton(program)));
    Await("the button, disabled", [&] { return !IsWindowEnabled(RememberButton(program)); });
    // This one is.
    box.Open();
    AddAllKinds(box, "tool.exe", "notes.txt", "Disk ");
    box.Click("Prog.");
    box.ChooseDrive('N');
    box.Pick("tool.exe");
    box.Add("Net");
    program.ExpectMessage(NotFixedHere);
    box.Click("Cancel");
    program.Exit();
  }
  const std::string inside = "#" + stick.Path().substr(1);
  const std::string machine = stick.Read("Vantor\\Machine.Orbel");
  CHECK(machine.starts_with("3\r\n\"1A2B3C4D\"\r\n"));
  Settings settings;
  for (int* upper : {&settings.FileUpper, &settings.FoldUpper, &settings.ProgUpper, &settings.WebUpper,
                     &settings.MachineFileUpper, &settings.MachineFoldUpper, &settings.MachineProgUpper}) {
    *upper = 0;
  }
  const std::vector<std::pair<std::string, std::string>> saved{
      {"Set", settings.Bytes()},
      {"MediaSet", mediaSet},
      {"ListFile", ListBytes({{"Own File", inside + "\\own.txt"}})},
      {"ListFold", ListBytes({{"Own Folder", inside}})},
      {"ListProg", ListBytes({{"Own Program", inside + "\\own.exe"}})},
      {"ListWeb", ListBytes({{"Site", "http://example.org/"}})},
      {"Machine", machine},
      {"MachineFile", ListBytes({{"Disk File", disk.Path("notes.txt")}})},
      {"MachineFold", ListBytes({{"Disk Folder", disk.Path()}})},
      {"MachineProg", ListBytes({{"Disk Program", disk.Path("tool.exe")}})}};
  CheckDataFiles(stick, saved);

  stick.MoveTo("F:\\");
  for (const char* serial : {Home, Elsewhere, Home}) {
    CAPTURE(serial);
    const bool home = serial == std::string(Home);
    GiveDiskSerial(serial);
    Program program(stick);
    for (const auto& [option, name, code] : Kinds) {
      CheckCompletion(program, code, "o", "Own " + name);
      CheckCompletion(program, code, "di", home ? "Disk " + name : "di");
    }
    if (!home) {
      const AddBox box(program);
      box.Open();
      box.ChooseDrive('C');
      box.Enter(diskName);
      box.Pick("tool.exe");
      box.Add("Tool");
      program.ExpectMessage(OtherMachine);
      input::Press(VK_F6);
      Await("the button", [&] { return RememberButton(program) != nullptr; });
      CHECK_FALSE(IsWindowEnabled(RememberButton(program)));
      input::Press(VK_F6);
    }
    program.Exit();
    CheckDataFiles(stick, saved);
  }
}

}  // namespace vantor::desktop
