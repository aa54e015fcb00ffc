// desktop: --root win32
// desktop: --root win64

#include <doctest/doctest.h>

#include <cwchar>
#include <stdexcept>

#include "TestFolder.h"
#include "win32/service/FileSystem.h"
#include "win32/service/Management.h"
#include "win32/service/ScriptShell.h"

using namespace vantor::win32;

namespace {

/// Takes the class of a scripting or management object away, as an administrator may.
class Without {
 public:
  explicit Without(const wchar_t* className) : key_(std::wstring(L"Software\\Classes\\") + className + L"\\CLSID") {
    DWORD size = sizeof old_;
    RegGetValueW(HKEY_LOCAL_MACHINE, key_.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, old_, &size);
    Set(L"{00000000-1111-2222-3333-444444444444}");
    Apartment com;
    com.Enter();
    REQUIRE_THROWS_AS((void)LateBound::Create(className), ComError);
  }
  ~Without() { Set(old_); }
  Without(const Without&) = delete;
  Without& operator=(const Without&) = delete;

 private:
  void Set(const wchar_t* id) const {
    const auto size = static_cast<DWORD>(std::wcslen(id) + 1) * sizeof(wchar_t);
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, key_.c_str(), nullptr, REG_SZ, id, static_cast<DWORD>(size));
  }

  std::wstring key_;
  wchar_t old_[64] = L"";
};

}  // namespace

TEST_CASE("without the scripting file system Windows is asked") {
  SKIP_UNLESS(OwnDesktop(), "a registry of the test's own");
  const Without object(L"Scripting.FileSystemObject");
  Apartment com;
  FileSystem files(com);
  const vantor::service::ManyFileCalls many(files);
  CHECK_FALSE(files.Available());
  CHECK(files.DriveType(L"C:\\") == 2);
  CHECK_FALSE(files.DriveType(L"Q:"));
  CHECK(files.DriveReady(L"C:"));
  CHECK_FALSE(files.DriveReady(L"Q:"));
  CHECK(files.FileExists(L"C:\\windows\\explorer.exe"));
  CHECK_FALSE(files.FileExists(L"C:\\windows"));
  CHECK(files.FolderExists(L"C:\\windows"));
  CHECK(files.ExtensionName(L"C:\\b.c\\Edit.EXE") == L"EXE");
  CHECK(files.ExtensionName(L"C:\\b.c\\plain").empty());
}

TEST_CASE("without the scripting shell Windows does the same") {
  SKIP_UNLESS(OwnDesktop(), "a registry of the test's own");
  const Without object(L"WScript.Shell");
  Apartment com;
  ScriptShell shell(com);
  TestFolder folder;
  const std::wstring ran = folder / L"ran.txt";
  SUBCASE("a document") {
    CHECK(shell.Run(L'"' + folder.Make(L"my tool.cmd", "@echo ran>\"%~dp0ran.txt\"\r\n") + L'"'));
  }
  SUBCASE("a command line") { CHECK(shell.Run(L"cmd /c echo ran>\"" + ran + L"\"")); }
  CHECK(Eventually([&] { return std::filesystem::exists(ran); }));
  CHECK_FALSE(shell.Run(L"nosuchprogram"));
  CHECK(shell.SpecialFolder(L"SendTo").find(L":\\") == 1);
  shell.RegistryWrite(L"HKEY_CURRENT_USER\\Software\\Vantor Test\\x", L"y");
  CHECK(shell.RegistryRead(L"HKEY_CURRENT_USER\\Software\\Vantor Test\\x") == L"y");
  shell.RegistryDelete(L"HKEY_CURRENT_USER\\Software\\Vantor Test\\x");
  CHECK(shell.RegistryRead(L"HKEY_CURRENT_USER\\Software\\Vantor Test\\x").empty());
  vantor::service::Shortcut shortcut;
  shortcut.File = folder / L"Vantor.lnk";
  shortcut.TargetPath = L"C:\\windows\\explorer.exe";
  CHECK(shell.SaveShortcut(shortcut));
}

TEST_CASE("disk C: tells who it is, the same each time, and nobody does without the management service") {
  SKIP_UNLESS(OwnDesktop(), "a registry of the test's own");
  const auto told = Management().ReadDiskIdentity();
  REQUIRE(told);
  CHECK(told->DriveType == 3);
  CHECK(told->VolumeSerialNumber.size() == 8);
  CHECK(told->Size > 1e6);
  CHECK(Management().ReadDiskIdentity()->VolumeSerialNumber == told->VolumeSerialNumber);
  const Without object(L"WinMgmts");
  CHECK_THROWS_AS((void)Management().ReadDiskIdentity(), std::runtime_error);
}
