// desktop: --drive e:=floppy --drive j:=hd:unreadable
// desktop: --root win64 --drive e:=floppy --drive j:=hd:unreadable
#include <doctest/doctest.h>

#include <windows.h>

#include <sddl.h>

#include <algorithm>

#include "TestFolder.h"
#include "win32/base/Handle.h"
#include "win32/service/DataFiles.h"
#include "win32/service/FileSystem.h"

using namespace vantor::win32;
using Names = std::vector<std::wstring>;

namespace {

struct Disk {
  Apartment Com;
  FileSystem Files{Com};
  TestFolder Folder;
};

void SetAttributes(const std::wstring& path, DWORD attributes) { SetFileAttributesW(path.c_str(), attributes); }

}  // namespace

TEST_CASE("drives, files and folders are known with the scripting object or without it, at any length of the path") {
  Disk disk;
  DataFiles data;
  const std::wstring file = disk.Folder.Make(L"a \x00E4\x4E2D,b.Tar.GZ");
  const std::wstring deep = disk.Folder / std::wstring(230, L'd');
  const std::wstring deepFile = deep + L"\\" + std::wstring(200, L'x') + L".txt";
  REQUIRE(data.MakeFolder(deep));
  REQUIRE(data.Write(deepFile, "deep"));
  CHECK(data.Read(deepFile).Bytes == "deep");
  CHECK(disk.Files.Files(deep, L"*.txt").size() == 1);
  const auto check = [&] {
    for (const wchar_t* path : {L"C:", L"c:\\", L"C:\\windows\\system32"}) {
      CHECK(disk.Files.DriveType(path) == 2);
      CHECK(disk.Files.DriveReady(path));
    }
    for (const wchar_t* none : {L"", L"Q:\\", L"nonsense", L"\\\\no-such-server\\share\\"}) {
      CHECK_FALSE(disk.Files.DriveType(none));
      CHECK_FALSE(disk.Files.DriveReady(none));
    }
    const std::tuple<std::wstring, bool, bool> paths[] = {
        {file, true, false}, {deepFile, true, false},     {disk.Folder.Path, false, true},
        {deep, false, true}, {file + L"x", false, false}, {L"", false, false}};
    for (const auto& [path, isFile, isFolder] : paths) {
      CHECK(disk.Files.FileExists(path) == isFile);
      CHECK(disk.Files.FolderExists(path) == isFolder);
    }
    const std::pair<const wchar_t*, const wchar_t*> extensions[] = {
        {L"C:\\a\\Edit.EXE", L"EXE"}, {L"a.tar.gz", L"gz"}, {L"C:\\b.c\\plain", L""}, {L"", L""}, {L"end.", L""}};
    for (const auto& [path, extension] : extensions) CHECK(disk.Files.ExtensionName(path) == extension);
  };
  WithAndWithout(L"Scripting.FileSystemObject", [&](bool with) {
    CAPTURE(with);
    CHECK(disk.Files.Available() == with);
    check();
    const vantor::service::ManyFileCalls many(disk.Files);
    check();
  });
  CHECK_FALSE(disk.Files.DriveType(L"J:"));
  const auto drives = disk.Files.Drives();
  CHECK(std::ranges::is_sorted(drives, {}, [](const auto& drive) { return drive.Letter; }));
  CHECK(std::ranges::any_of(drives, [](const auto& drive) { return drive.Letter == L'C' && drive.Type == 2; }));
  // The clean-up of the folder can't remove this.
  DeleteFileW((L"\\\\?\\" + deepFile).c_str());
  RemoveDirectoryW((L"\\\\?\\" + deep).c_str());
}

TEST_CASE("a place is others' to write to when its access list says so, or can't be read") {
  Disk disk;
  const std::wstring file = disk.Folder.Make(L"a.exe");
  const std::pair<const wchar_t*, bool> rows[] = {{L"D:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;FRFX;;;WD)", false},
                                                  {L"D:P(A;;FA;;;SY)(A;;FA;;;WD)", true},
                                                  {L"D:P(A;;FA;;;SY)(A;;FRFW;;;WD)", true}};
  for (const auto& [list, shared] : rows) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    REQUIRE(ConvertStringSecurityDescriptorToSecurityDescriptorW(list, SDDL_REVISION_1, &descriptor, nullptr));
    CHECK(SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, descriptor));
    LocalFree(descriptor);
    CHECK(disk.Files.OthersMayWrite(file) == shared);
  }
  CHECK_FALSE(disk.Files.OthersMayWrite(disk.Folder.Path));
  CHECK(disk.Files.OthersMayWrite(disk.Folder / L"none"));
}

TEST_CASE("a folder's entries fit the pattern by their long names, sorted, without the hidden ones") {
  Disk disk;
  for (const wchar_t* name : {L"b.EXE", L"A.exe", L"c.exe1", L"plain", L"Hidden.exe", L"\x00C4x.exe", L"z.exe"})
    disk.Folder.Make(name);
  SetAttributes(disk.Folder / L"Hidden.exe", FILE_ATTRIBUTE_HIDDEN);
  SetAttributes(disk.Folder / L"z.exe", FILE_ATTRIBUTE_READONLY);
  for (const wchar_t* name : {L"Sub.exe", L"another"}) std::filesystem::create_directory(disk.Folder / name);

  CHECK(disk.Files.Files(disk.Folder.Path, L"*.exe") == Names{L"A.exe", L"\x00C4x.exe", L"b.EXE", L"z.exe"});
  CHECK(disk.Files.Files(disk.Folder.Path, L"*.*").size() == 6);
  CHECK(disk.Files.Folders(disk.Folder.Path + L"\\") == Names{L"another", L"Sub.exe"});
  CHECK(disk.Files.Files(disk.Folder / L"none", L"*.*").empty());
  CHECK(disk.Files.Folders(L"").empty());
  CHECK_FALSE(disk.Files.Folders(L"C:\\").empty());
  SetAttributes(disk.Folder / L"z.exe", FILE_ATTRIBUTE_NORMAL);
}

TEST_CASE("a data file is replaced whole or left whole, in its place too where that is asked for") {
  TestFolder folder;
  DataFiles data;
  const std::wstring path = folder / L"Set \x4E2D.Orbel";
  const std::string old("old\r\n\0text", 10);
  CHECK(data.Read(path).Missing);
  CHECK(data.Remove(path));
  CHECK(data.FolderEntries(folder.Path) == Names{});
  REQUIRE(data.Write(path, "longer than the next"));
  CHECK(data.Write(path, ""));
  CHECK(data.Read(path).Bytes == "");
  CHECK(data.WriteInPlace(path, "longer than the next"));
  REQUIRE(data.WriteInPlace(path, old));
  CHECK(data.Read(path).Bytes == old);
  const auto open = [&](DWORD shared) {
    return FileHandle(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr));
  };
  for (const auto write : {&DataFiles::Write, &DataFiles::WriteInPlace}) {
    for (const std::wstring& none : {folder.Path, folder / L"none\\Set.Orbel", std::wstring(L"Q:\\Set.Orbel")})
      CHECK_FALSE((data.*write)(none, "new"));
    SetAttributes(path, FILE_ATTRIBUTE_READONLY);
    CHECK_FALSE((data.*write)(path, "new"));
    CHECK_FALSE(data.CanWrite(path));
    SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
    FileHandle held = open(FILE_SHARE_READ);
    CHECK_FALSE((data.*write)(path, "new"));
    CHECK_FALSE(data.Remove(path));
    CHECK(data.CanWrite(path));
    held.Reset();
    held = open(0);
    CHECK(data.Read(path).Failed());
    held.Reset();
    CHECK(data.Read(path).Bytes == old);
    SetAttributes(path, FILE_ATTRIBUTE_HIDDEN);
    CHECK((data.*write)(path, "new"));
    CHECK((GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
    CHECK(data.Read(path).Bytes == "new");
    SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
    REQUIRE(data.Write(path, old));
  }
  // No new file can be created next to it.
  std::filesystem::create_directory(path + L"~");
  CHECK(data.Write(path, "new"));
  CHECK(data.Read(path).Bytes == "new");
  std::filesystem::remove(path + L"~");
  Apartment com;
  CHECK(FileSystem(com).Files(folder.Path, L"*.*") == Names{L"Set \x4E2D.Orbel"});

  SetAttributes(path, FILE_ATTRIBUTE_HIDDEN);
  CHECK(data.FolderEntries(folder.Path) == Names{L"Set \x4E2D.Orbel"});
  for (int time = 0; time < 2; ++time) CHECK(data.MakeFolder(folder / L"made"));
  CHECK(data.FolderEntries(folder / L"none") == Names{});
  const std::wstring moved = folder / L"made\\Set.Orbel";
  CHECK_FALSE(data.Move(path, moved));  // it is hidden; a new one would not be
  SetAttributes(path, FILE_ATTRIBUTE_ARCHIVE);
  for (int time = 0; time < 2; ++time) {
    REQUIRE(data.Write(path, old));
    CHECK(data.Move(path, moved));
    CHECK_FALSE(data.Move(path, moved));
  }
  CHECK(data.Move(moved, path));
  CHECK_FALSE(data.MakeFolder(path));
  CHECK_FALSE(data.MakeFolder(folder / L"no\\Vantor"));
  CHECK(data.Read(folder.Path).Failed());
  CHECK(data.Remove(path));
  CHECK(data.Read(path).Missing);
}

TEST_CASE("what a full disk has no room for leaves what is there") {
  const std::wstring file = L"Z:\\small\\a.Orbel";
  SKIP_UNLESS(std::filesystem::exists(L"Z:\\small"), "a small disk");
  DataFiles data;
  REQUIRE(data.Write(file, "old"));
  CHECK_FALSE(data.Write(file, std::string(2 << 20, 'x')));
  CHECK(data.Read(file).Bytes == "old");
  CHECK(data.Remove(file));
}
