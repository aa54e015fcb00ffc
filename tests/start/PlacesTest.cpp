#include "start/Places.h"

#include <doctest/doctest.h>

#include "fake/Computer.h"

namespace vantor::start {

TEST_CASE("drives have a class by the scripting file system's numbering") {
  fake::Computer computer;
  const std::wstring_view expected[] = {L"Unknown", L"Removable", L"Fixed", L"Remote", L"CDRom", L"RAMDisk", L""};
  for (int type = 0; type < 7; ++type) {
    computer.Disk.AddDrive(L'E', type);
    CHECK(GetDriveTypeText(computer, L"E:\\") == expected[type]);
  }
  CHECK(GetDriveTypeText(computer, L"Q:\\").empty());
}

TEST_CASE("the Windows folder ends in one backslash, or is not known") {
  const std::wstring longest = L"C:\\" + std::wstring(251, L'w');
  const std::pair<std::wstring, std::wstring> cases[] = {{L"C:\\Windows", L"C:\\Windows\\"},
                                                         {L"D:\\", L"D:\\"},
                                                         {L"", L""},
                                                         {longest, longest + L"\\"},
                                                         {longest + L"w", L""}};
  for (const auto& [told, expected] : cases) {
    fake::Computer computer;
    computer.Windows = told;
    Environment environment;
    GetWindowsFolder(computer, computer, environment);
    CHECK(environment.WindowsFolder == expected);
    CHECK(environment.WindowsFolderUpper == computer.Upper(expected));
    CHECK(environment.WindowsDriveLetter == expected.substr(0, 1));
  }
}

TEST_CASE("the root of a folder is its drive or its share, and the data files lie below the program") {
  const std::pair<std::wstring, std::wstring> cases[] = {{L"E:\\", L"E:\\"},
                                                         {L"E:\\Tools\\x\\", L"E:\\"},
                                                         {L"\\\\server\\share\\", L"\\\\server\\share\\"},
                                                         {L"\\\\server\\share\\a\\b\\", L"\\\\server\\share\\"}};
  for (const auto& [folder, root] : cases) CHECK(DriveRootOf(folder) == root);
  Environment environment;
  environment.ProgramFolder = L"E:\\";
  environment.RunMode = true;
  SetDataFiles(environment);
  CHECK(environment.Files.MachineProg == L"E:\\Vantor\\MachineProg.Orbel");
  CHECK(environment.Files.User.empty());
}

}  // namespace vantor::start
