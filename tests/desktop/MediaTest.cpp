// desktop: --drive e:=floppy --drive f:=floppy --drive n:=network
// A list on a removable drive: what may be added to it, and where it goes with the drive.

#include <doctest/doctest.h>
#include <windows.h>

#include <winioctl.h>

#include <cstddef>
#include <fstream>

#include "desktop/AddBox.h"
#include "desktop/Recorder.h"

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
  const std::string home = "1A2B3C4D";
  GiveDiskSerial(home);
  const Folder disk("C:\\");
  for (const char* name : {"tool.exe", "notes.txt"}) disk.Write(name);
  Folder stick("E:\\");
  stick.CopyProgram("recorder.exe", "own.exe");
  stick.Write("own.txt");
  std::ofstream("N:\\tool.exe").close();
  const std::string mediaSet = "\"Vantor Media 1\"\r\n\"Ready\"\r\n\"Anna\"\r\n";
  stick.WriteData("MediaSet", mediaSet);
  stick.WriteData("Set", Settings{.WebUpper = 0}.Bytes());
  stick.WriteData("ListWeb", ListBytes({{"Site", "http://example.org/"}}));
  const auto pickOnDisk = [&](const AddBox& box) {
    box.ChooseDrive('C');
    box.Enter(disk.Path().substr(3));
    box.Pick("tool.exe");
    box.Add("Tool");
  };
  {
    const Program program(stick);
    program.AwaitBar();
    const AddBox box(program);
    const Panel preferences(program, VK_F6, "Options");
    box.Open();
    AddAllKinds(box, "own.exe", "own.txt", "Own ");  // what is on the stick needs no computer
    box.Click("Prog.");
    pickOnDisk(box);
    program.ExpectMessage(NoMachineYet);
    CHECK(box.Path() == disk.Path("tool.exe"));
    CHECK(box.Name() == "Tool");
    preferences.Open();
    preferences.Click("Remember My Computer");
    CHECK_BECOMES(window::IsEnabled(preferences.Button("Remember My Computer")), false);
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
  const std::string machine = stick.Data("Machine");
  CHECK(machine.starts_with("3\r\n\"1A2B3C4D\"\r\n"));
  const Settings settings{.FileUpper = 0,
                          .FoldUpper = 0,
                          .ProgUpper = 0,
                          .WebUpper = 0,
                          .MachineFileUpper = 0,
                          .MachineFoldUpper = 0,
                          .MachineProgUpper = 0};
  const auto checkSaved = [&] {
    const std::pair<std::string, std::string> files[] = {
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
    for (const auto& [name, bytes] : files) {
      CAPTURE(name);
      CHECK(stick.Data(name) == bytes);
    }
  };
  checkSaved();

  stick.MoveTo("F:\\");
  Recorder recorder(stick);
  for (const std::string& serial : {home, std::string("0BADCAFE"), home}) {
    CAPTURE(serial);
    GiveDiskSerial(serial);
    const Program program(stick);
    program.AwaitBar();
    for (const auto& [option, name, code] : Kinds) {
      program.TypeLine(code + "di");
      CHECK_BECOMES(program.Line(), code + (serial == home ? "Disk " + name : "di"));
      program.TypeLine(code + "o");
      CHECK_BECOMES(program.Line(), code + "Own " + name);
    }
    program.Enter("p-o");
    CHECK(recorder.Next() == '"' + stick.Path("own.exe") + '"');
    if (serial != home) {
      const AddBox box(program);
      program.AwaitBar();
      box.Open();
      pickOnDisk(box);
      program.ExpectMessage(OtherMachine);
      const Panel preferences(program, VK_F6, "Options");
      preferences.Open();
      CHECK_FALSE(IsWindowEnabled(preferences.Button("Remember My Computer")));
      preferences.Close();
    }
    program.Exit();
    checkSaved();
  }
}

}  // namespace vantor::desktop
