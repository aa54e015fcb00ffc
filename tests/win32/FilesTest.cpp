// desktop: --drive e:=floppy --drive g:=network --drive h:=ramdisk --drive i:=cdrom:empty --drive j:=hd:unreadable
#include <doctest/doctest.h>

#include <algorithm>

#include "TestFolder.h"
#include "win32/FileSystem.h"

using namespace vantor::win32;
using Names = std::vector<std::wstring>;

namespace {

struct Disk {
  Apartment Com;
  FileSystem Files{Com};
  TestFolder Folder;
};

bool OnTestDrives() { return GetDriveTypeW(L"H:\\") == DRIVE_RAMDISK; }

}  // namespace

TEST_CASE("drives are classified as the scripting file system does") {
  Disk disk;
  for (const wchar_t* root : {L"C:", L"c:\\", L"C:\\windows\\system32"}) CHECK(disk.Files.DriveType(root) == 2);
  for (const wchar_t* root : {L"", L"Q:", L"Q:\\", L"?", L"nonsense", L"\\\\no-such-server\\share\\"})
    CHECK_FALSE(disk.Files.DriveType(root));
  CHECK(disk.Files.DriveReady(L"C:\\anything"));
  CHECK_FALSE(disk.Files.DriveReady(L"Q:\\"));

  const auto drives = disk.Files.Drives();
  CHECK(std::is_sorted(drives.begin(), drives.end(), [](auto& a, auto& b) { return a.Letter < b.Letter; }));
  const auto system = std::find_if(drives.begin(), drives.end(), [](auto& drive) { return drive.Letter == L'C'; });
  REQUIRE(system != drives.end());
  CHECK(system->Type == 2);

  if (!OnTestDrives()) return;
  const std::pair<const wchar_t*, int> types[] = {{L"E:\\", 1}, {L"g:", 3}, {L"H:", 5}};
  for (const auto& [root, type] : types) {
    CHECK(disk.Files.DriveType(root) == type);
    CHECK(disk.Files.DriveReady(root));
  }
  CHECK(disk.Files.DriveType(L"I:") == 4);
  CHECK_FALSE(disk.Files.DriveReady(L"I:\\"));
  CHECK_FALSE(disk.Files.DriveType(L"J:"));
  CHECK_FALSE(disk.Files.DriveReady(L"J:"));
}

TEST_CASE("files and folders are told apart, at any length of the path") {
  Disk disk;
  const std::wstring file = disk.Folder.Make(L"a \x00E4\x4E2D,b.Tar.GZ");
  std::wstring deep = disk.Folder.Path;
  DataFiles data;
  for (int i = 0; i < 4; ++i) {
    deep += L'\\' + std::wstring(100, L'd');
    REQUIRE(data.MakeFolder(deep));
  }
  REQUIRE(data.Write(deep + L"\\x.txt", "deep"));
  for (const bool many : {false, true}) {
    if (many) disk.Files.BeginMany();
    CHECK(disk.Files.FileExists(file));
    CHECK_FALSE(disk.Files.FolderExists(file));
    CHECK(disk.Files.FolderExists(disk.Folder.Path));
    CHECK_FALSE(disk.Files.FileExists(disk.Folder.Path));
    CHECK_FALSE(disk.Files.FileExists(file + L"x"));
    CHECK_FALSE(disk.Files.FileExists(L""));
    CHECK(disk.Files.FolderExists(deep));
    CHECK(disk.Files.FileExists(deep + L"\\x.txt"));
    CHECK(disk.Files.Files(deep, L"*.txt") == Names{L"x.txt"});
    if (many) disk.Files.EndMany();
  }
  CHECK(data.Read(deep + L"\\x.txt") == "deep");
  // What the clean-up of the folder can't reach.
  const std::wstring literal = L"\\\\?\\" + deep;
  CHECK(DeleteFileW((literal + L"\\x.txt").c_str()));
  for (std::size_t cut = 0; cut < 4; ++cut) RemoveDirectoryW(literal.substr(0, literal.size() - cut * 101).c_str());

  const std::pair<const wchar_t*, const wchar_t*> extensions[] = {
      {L"C:\\a\\Edit.EXE", L"EXE"}, {L"a.tar.gz", L"gz"}, {L"C:\\b.c\\plain", L""}, {L"", L""}, {L"end.", L""}};
  for (const auto& [path, extension] : extensions) {
    const std::wstring found = disk.Files.ExtensionName(path);
    CAPTURE(std::string(found.begin(), found.end()));
    CHECK(found == extension);
  }
}

TEST_CASE("a folder's entries fit the pattern by their long names, sorted, without the hidden ones") {
  Disk disk;
  for (const wchar_t* name : {L"b.EXE", L"A.exe", L"c.exe1", L"plain", L"Hidden.exe", L"\x00C4x.exe", L"z.exe"})
    disk.Folder.Make(name);
  SetFileAttributesW((disk.Folder / L"Hidden.exe").c_str(), FILE_ATTRIBUTE_HIDDEN);
  SetFileAttributesW((disk.Folder / L"z.exe").c_str(), FILE_ATTRIBUTE_READONLY);
  for (const wchar_t* name : {L"Sub.exe", L"another"}) CreateDirectoryW((disk.Folder / name).c_str(), nullptr);

  CHECK(disk.Files.Files(disk.Folder.Path, L"*.exe") == Names{L"A.exe", L"\x00C4x.exe", L"b.EXE", L"z.exe"});
  CHECK(disk.Files.Files(disk.Folder.Path, L"*.*").size() == 6);
  CHECK(disk.Files.Folders(disk.Folder.Path + L"\\") == Names{L"another", L"Sub.exe"});
  CHECK(disk.Files.Files(disk.Folder / L"none", L"*.*").empty());
  CHECK(disk.Files.Folders(L"").empty());
  CHECK_FALSE(disk.Files.Folders(L"C:\\").empty());
}

TEST_CASE("a thousand files are listed at once") {
  Disk disk;
  for (int i = 0; i < 1000; ++i) disk.Folder.Make(L"File " + std::to_wstring(i * 919 % 1000) + L".exe");
  const DWORD begin = GetTickCount();
  const Names names = disk.Files.Files(disk.Folder.Path, L"*.exe");
  const DWORD milliseconds = GetTickCount() - begin;
  CHECK(names.size() == 1000);
  CHECK(names.front() == L"File 0.exe");
  CHECK(milliseconds < 200);
}

TEST_CASE("a data file is replaced whole or left whole") {
  TestFolder folder;
  DataFiles data;
  const std::wstring path = folder / L"Set \x4E2D.Orbel";
  const std::string old("old\r\n\0text", 10);
  CHECK_FALSE(data.Read(path));
  REQUIRE(data.Write(path, old));
  CHECK(data.Read(path) == old);
  CHECK(data.Write(path, ""));
  CHECK(data.Read(path) == "");
  REQUIRE(data.Write(path, old));

  SUBCASE("read-only") {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    CHECK_FALSE(data.Write(path, "new"));
    CHECK(data.Read(path) == old);
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  }
  SUBCASE("held open by a program that lets nobody write") {
    const FileHandle held(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    CHECK_FALSE(data.Write(path, "new"));
    CHECK(data.Read(path) == old);
  }
  SUBCASE("hidden, and it stays so") {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
    CHECK(data.Write(path, "new"));
    CHECK(data.Read(path) == "new");
    CHECK(data.WriteInPlace(path, "newer"));
    CHECK(data.Read(path) == "newer");
    CHECK((GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
  }
  SUBCASE("no new file can be made beside it") {
    CreateDirectoryW((path + L"~").c_str(), nullptr);
    CHECK(data.Write(path, "new"));
    CHECK(data.Read(path) == "new");
    RemoveDirectoryW((path + L"~").c_str());
  }
  SUBCASE("not a file at all") {
    CHECK_FALSE(data.Write(folder.Path, "new"));
    CHECK_FALSE(data.Write(folder / L"none\\Set.Orbel", "new"));
    CHECK_FALSE(data.Write(L"Q:\\Set.Orbel", "new"));
    CHECK_FALSE(data.Read(folder.Path));
  }
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  Apartment com;
  CHECK(FileSystem(com).Files(folder.Path, L"*.*") == Names{L"Set \x4E2D.Orbel"});
}

TEST_CASE("a data file is written in place and removed, where that is allowed") {
  TestFolder folder;
  DataFiles data;
  const std::wstring path = folder / L"Set.Orbel";
  CHECK(data.Remove(path));
  CHECK(data.Remove(folder / L"none\\Set.Orbel"));
  REQUIRE(data.WriteInPlace(path, "longer"));
  CHECK(data.WriteInPlace(path, "short"));
  CHECK(data.Read(path) == "short");
  {
    const FileHandle held(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    CHECK_FALSE(data.WriteInPlace(path, "new"));
    CHECK_FALSE(data.Remove(path));
  }
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  CHECK_FALSE(data.WriteInPlace(path, "new"));
  CHECK(data.Read(path) == "short");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  CHECK_FALSE(data.WriteInPlace(folder.Path, "new"));
  CHECK_FALSE(data.WriteInPlace(folder / L"none\\Set.Orbel", "new"));
  CHECK(data.Remove(path));
  CHECK_FALSE(data.Read(path));
}

TEST_CASE("data folders are made once and known when empty") {
  TestFolder folder;
  DataFiles data;
  const std::wstring path = folder / L"Vantor";
  CHECK(data.FolderIsEmpty(path));
  CHECK(data.MakeFolder(path));
  CHECK(data.MakeFolder(path));
  CHECK(data.FolderIsEmpty(path));
  REQUIRE(data.Write(path + L"\\Set.Orbel", "x"));
  CHECK_FALSE(data.FolderIsEmpty(path));
  CHECK_FALSE(data.MakeFolder(path + L"\\Set.Orbel"));
  CHECK_FALSE(data.MakeFolder(folder / L"no\\Vantor"));
}
