// desktop: --drive e:=floppy --drive j:=hd:unreadable
// desktop: --root win64 --drive e:=floppy --drive j:=hd:unreadable
#include <windows.h>

#include <sddl.h>

#include "driver/Check.h"
#include "driver/Folder.h"
#include "win32/base/Handle.h"
#include "win32/service/DataFiles.h"
#include "win32/service/FileSystem.h"

namespace vantor::win32 {

using namespace desktop;
using Names = std::vector<std::wstring>;

namespace {

struct Disk {
  Apartment Com;
  FileSystem Files{Com};
  Folder Place;
};

void SetAttributes(const std::wstring& path, DWORD attributes) { SetFileAttributesW(path.c_str(), attributes); }

}  // namespace

TEST_CASE("drives, files and folders are known with the scripting object or without it, at any length of the path") {
  Disk disk;
  DataFiles data;
  const std::wstring file = disk.Place.Write(L"a \x00E4\x4E2D,b.Tar.GZ");
  const std::wstring deep = disk.Place / std::wstring(230, L'd');
  const std::wstring deepFile = deep + L"\\" + std::wstring(200, L'x') + L".txt";
  REQUIRE((data.MakeFolder(deep) && data.Write(deepFile, "deep")));
  CHECK(data.Read(deepFile).Bytes == "deep");
  CHECK(disk.Files.Files(deep, L"*.txt").size() == 1);
  const auto check = [&] {
    for (const wchar_t* path : {L"C:", L"c:\\", L"C:\\windows\\system32"})
      CHECK((disk.Files.DriveType(path) == 2 && disk.Files.DriveReady(path)));
    for (const wchar_t* none : {L"", L"Q:\\", L"nonsense", L"\\\\no-such-server\\share\\"})
      CHECK((!disk.Files.DriveType(none) && !disk.Files.DriveReady(none)));
    for (const std::wstring& there : {file, deepFile})
      CHECK((disk.Files.FileExists(there) && !disk.Files.FolderExists(there)));
    for (const std::wstring& there : {disk.Place.Path, deep})
      CHECK((disk.Files.FolderExists(there) && !disk.Files.FileExists(there)));
    for (const std::wstring& none : {file + L"x", std::wstring()})
      CHECK((!disk.Files.FolderExists(none) && !disk.Files.FileExists(none)));
    const std::pair<const wchar_t*, const wchar_t*> extensions[] = {
        {L"C:\\a\\Edit.EXE", L"EXE"}, {L"a.tar.gz", L"gz"}, {L"C:\\b.c\\plain", L""}, {L"", L""}, {L"end.", L""}};
    for (const auto& [path, extension] : extensions) CHECK(disk.Files.ExtensionName(path) == extension);
  };
  WithAndWithout(L"Scripting.FileSystemObject", [&](bool with) {
    CAPTURE(with);
    CHECK(disk.Files.Available() == with);
    check();
    const service::ManyFileCalls many(disk.Files);
    check();
  });
  CHECK_FALSE(disk.Files.DriveType(L"J:"));
  // The clean-up of the folder can't remove this.
  DeleteFileW((L"\\\\?\\" + deepFile).c_str());
  RemoveDirectoryW((L"\\\\?\\" + deep).c_str());
}

TEST_CASE("a place is others' to write to when its access list says so, or can't be read") {
  Disk disk;
  const std::wstring file = disk.Place.Write(L"a.exe");
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
  CHECK_FALSE(disk.Files.OthersMayWrite(disk.Place.Path));
  CHECK(disk.Files.OthersMayWrite(disk.Place / L"none"));
}

TEST_CASE("a folder's entries fit the pattern by their long names, sorted, without the hidden ones") {
  Disk disk;
  for (const wchar_t* name : {L"b.EXE", L"A.exe", L"c.exe1", L"plain", L"Hidden.exe", L"\x00C4x.exe"})
    disk.Place.Write(name);
  SetAttributes(disk.Place / L"Hidden.exe", FILE_ATTRIBUTE_HIDDEN);
  for (const wchar_t* name : {L"Sub.exe", L"another"}) std::filesystem::create_directory(disk.Place / name);
  CHECK(disk.Files.Files(disk.Place.Path, L"*.exe") == Names{L"A.exe", L"\x00C4x.exe", L"b.EXE"});
  CHECK(disk.Files.Files(disk.Place.Path, L"*.*").size() == 5);
  CHECK(disk.Files.Folders(disk.Place.Path + L"\\") == Names{L"another", L"Sub.exe"});
  CHECK((disk.Files.Files(disk.Place / L"none", L"*.*").empty() && disk.Files.Folders(L"").empty()));
}

TEST_CASE("a data file is replaced whole or left whole, in its place too where that is asked for") {
  const Folder folder;
  DataFiles data;
  const std::wstring path = folder / L"Set \x4E2D.Orbel";
  const std::string old("old\r\n\0text", 10);
  CHECK((data.Read(path).Missing && data.Remove(path)));
  const auto hold = [&](DWORD shared) {
    return FileHandle(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr));
  };
  for (const auto write : {&DataFiles::Write, &DataFiles::WriteInPlace}) {
    REQUIRE((data.*write)(path, "longer than the next"));
    CHECK((data.*write)(path, old));
    for (const std::wstring& none : {folder.Path, folder / L"none\\Set.Orbel", std::wstring(L"Q:\\Set.Orbel")})
      CHECK_FALSE((data.*write)(none, "new"));
    SetAttributes(path, FILE_ATTRIBUTE_READONLY);
    CHECK_FALSE((data.*write)(path, "new"));
    CHECK_FALSE(data.CanWrite(path));
    SetAttributes(path, FILE_ATTRIBUTE_HIDDEN);
    FileHandle held = hold(FILE_SHARE_READ);
    CHECK_FALSE((data.*write)(path, "new"));
    CHECK_FALSE(data.Remove(path));
    CHECK(data.CanWrite(path));
    held.Reset();
    held = hold(0);
    CHECK(data.Read(path).Failed());
    held.Reset();
    CHECK(data.Read(path).Bytes == old);
    CHECK((data.*write)(path, "new"));
    CHECK(data.Read(path).Bytes == "new");
    CHECK((GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0);
    SetAttributes(path, FILE_ATTRIBUTE_NORMAL);
  }
  // No new file can be created next to it.
  std::filesystem::create_directory(path + L"~");
  CHECK((data.Write(path, old) && data.Read(path).Bytes == old));
}

TEST_CASE("a data file is moved unless it would not be the same, and folders are made and listed") {
  const Folder folder;
  DataFiles data;
  const std::wstring path = folder.Write(L"Set.Orbel");
  for (int time = 0; time < 2; ++time) CHECK(data.MakeFolder(folder / L"made"));
  CHECK_FALSE(data.MakeFolder(path));
  CHECK_FALSE(data.MakeFolder(folder / L"no\\Vantor"));
  const std::wstring moved = folder / L"made\\Set.Orbel";
  SetAttributes(path, FILE_ATTRIBUTE_HIDDEN);
  CHECK_FALSE(data.Move(path, moved));  // a new one would not be hidden
  CHECK((data.FolderEntries(folder / L"made") == Names{} && data.FolderEntries(folder / L"none") == Names{}));
  SetAttributes(path, FILE_ATTRIBUTE_ARCHIVE);
  for (int time = 0; time < 2; ++time) {
    REQUIRE(data.Write(path, "moved"));
    CHECK(data.Move(path, moved));
    CHECK_FALSE(data.Move(path, moved));
  }
  CHECK(data.FolderEntries(folder / L"made") == Names{L"Set.Orbel"});
  CHECK(data.Read(moved).Bytes == "moved");
  CHECK((data.Read(folder.Path).Failed() && data.Remove(moved) && data.Read(moved).Missing));
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

}  // namespace vantor::win32
