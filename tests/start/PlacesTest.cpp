#include "start/Places.h"

#include <doctest/doctest.h>

#include "fake/FakeServices.h"

namespace vantor::start {
namespace {

TEST_CASE("Drives have a class by the scripting file system's numbering") {
  fake::FakeServices services;
  const std::wstring_view expected[] = {L"Unknown", L"Removable", L"Fixed", L"Remote", L"CDRom", L"RAMDisk", L""};
  for (int type = 0; type < 7; ++type) {
    services.Disk.AddDrive(L'E', type);
    CHECK(GetDriveTypeText(services.FileSystem, L"E:\\") == expected[type]);
  }
  services.Disk.Drive(L'E').Examinable = false;
  CHECK(GetDriveTypeText(services.FileSystem, L"E:\\").empty());
  CHECK(GetDriveTypeText(services.FileSystem, L"Q:\\").empty());
}

TEST_CASE("The Windows folder ends in one backslash, or is not known") {
  const std::wstring longest = L"C:\\" + std::wstring(251, L'w');
  const std::pair<std::wstring, std::wstring> cases[] = {{L"C:\\Windows", L"C:\\Windows\\"},
                                                         {L"D:\\", L"D:\\"},
                                                         {L"", L""},
                                                         {longest, longest + L"\\"},
                                                         {longest + L"w", L""}};
  for (const auto& [told, expected] : cases) {
    fake::FakeServices services;
    services.System.Windows = told;
    Environment environment;
    GetWindowsFolder(services.System, services.Language, environment);
    CHECK(environment.WindowsFolder == expected);
    CHECK(environment.WindowsFolderUpper == services.Language.Upper(expected));
    CHECK(environment.WindowsDriveLetter == expected.substr(0, 1));
  }
}

TEST_CASE("The root of a folder is its drive or its share") {
  const std::pair<std::wstring, std::wstring> cases[] = {{L"E:\\", L"E:\\"},
                                                         {L"E:\\Tools\\x\\", L"E:\\"},
                                                         {L"\\\\server\\share\\", L"\\\\server\\share\\"},
                                                         {L"\\\\server\\share\\a\\b\\", L"\\\\server\\share\\"}};
  for (const auto& [folder, root] : cases) CHECK(DriveRootOf(folder) == root);
}

TEST_CASE("The data files depend on the run mode") {
  Environment environment;
  environment.ProgramFolder = L"E:\\Tools\\";
  SetDataFiles(environment);
  CHECK(environment.DataFolder == L"E:\\Tools\\Vantor");
  CHECK(environment.Files.Set == L"E:\\Tools\\Vantor\\Set.Orbel");
  CHECK(environment.Files.User == L"E:\\Tools\\Vantor\\User.Orbel");
  CHECK(environment.Files.MediaSet.empty());

  environment = {};
  environment.ProgramFolder = L"E:\\";
  environment.RunMode = true;
  SetDataFiles(environment);
  CHECK(environment.Files.MachineProg == L"E:\\Vantor\\MachineProg.Orbel");
  CHECK(environment.Files.User.empty());
}

}  // namespace
}  // namespace vantor::start
