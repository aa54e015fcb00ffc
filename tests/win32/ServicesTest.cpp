#include <doctest/doctest.h>

#include <shlobj.h>

#include "TestFolder.h"
#include "win32/Com.h"
#include "win32/Language.h"
#include "win32/Management.h"
#include "win32/RegistryValue.h"
#include "win32/ScriptShell.h"
#include "win32/ShortcutFile.h"
#include "win32/SpecialFolders.h"

using namespace vantor::win32;
using vantor::service::Shortcut;

namespace {

struct ShellCalls {
  Apartment Com;
  ScriptShell Script{Com};
};

}  // namespace

TEST_CASE("every special folder is found, by the scripting shell or without it") {
  ShellCalls shell;
  for (const wchar_t* name : {L"AllUsersDesktop", L"AllUsersStartMenu", L"AllUsersPrograms", L"AllUsersStartup",
                              L"Desktop", L"Favorites", L"Fonts", L"MyDocuments", L"NetHood", L"PrintHood", L"Programs",
                              L"Recent", L"SendTo", L"StartMenu", L"Startup", L"Templates"}) {
    const std::wstring path = shell.Script.SpecialFolder(name);
    CAPTURE(std::string(path.begin(), path.end()));
    CHECK(path.find(L":\\") == 1);
    CHECK(path == PlainSpecialFolder(name));
  }
  CHECK(shell.Script.SpecialFolder(L"nosuch").empty());
  CHECK(shell.Script.SpecialFolder(L"").empty());
}

TEST_CASE("registry values are written, read and deleted, and everything else is silence") {
  ShellCalls shell;
  const std::wstring key = L"HKEY_CURRENT_USER\\Software\\Vantor Test";
  const std::wstring name = key + L"\\Orbels\x00C4\x4E2D";
  const std::wstring value = L"C:\\Program Files\\\x4E2D\\Vantor.exe";
  SUBCASE("by the scripting shell") {
    shell.Script.RegistryWrite(name, value);
    CHECK(shell.Script.RegistryRead(name) == value);
    CHECK(PlainRegistryRead(name) == value);
    shell.Script.RegistryDelete(name);
  }
  SUBCASE("by Windows") {
    PlainRegistryWrite(name, value);
    CHECK(PlainRegistryRead(name) == value);
    CHECK(shell.Script.RegistryRead(name) == value);
    PlainRegistryDelete(name);
  }
  CHECK(shell.Script.RegistryRead(name).empty());
  CHECK(PlainRegistryRead(name).empty());

  const DWORD number = 42;
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Vantor Test", L"n", REG_DWORD, &number, sizeof number);
  CHECK(shell.Script.RegistryRead(key + L"\\n") == L"42");
  CHECK(PlainRegistryRead(key + L"\\n") == L"42");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Vantor Test");

  for (const wchar_t* bad : {L"", L"nonsense", L"HKEY_NONE\\a\\b", L"HKEY_CURRENT_USER\\Software\\Vantor Test\\none"}) {
    shell.Script.RegistryDelete(bad);
    PlainRegistryDelete(bad);
    CHECK(shell.Script.RegistryRead(bad).empty());
    CHECK(PlainRegistryRead(bad).empty());
  }
}

TEST_CASE("a shortcut reads back as it was meant, hot key included") {
  ShellCalls shell;
  TestFolder folder;
  Shortcut shortcut;
  shortcut.File = folder / L"Vantor.lnk";
  SUBCASE("in the code page") { shortcut.TargetPath = folder.Make(L"Vantor.exe"); }
  SUBCASE("in any letters") { shortcut.TargetPath = folder.Make(L"V\x00E4ntor \x4E2D\x0416.exe"); }
  shortcut.Hotkey = L"CTRL+SHIFT+L";
  shortcut.IconLocation = shortcut.TargetPath + L", 0";
  shortcut.Description = L"Vantor";
  shortcut.WorkingDirectory = folder.Path;
  CHECK(shell.Script.SaveShortcut(shortcut));
  CHECK(shell.Script.SaveShortcut(shortcut));

  ComPointer<IShellLinkW> link;
  REQUIRE(SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW, link.PutVoid())));
  ComPointer<IPersistFile> file;
  REQUIRE(SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.PutVoid())));
  REQUIRE(file->Load(shortcut.File.c_str(), STGM_READ) == S_OK);
  wchar_t text[MAX_PATH];
  PIDLIST_ABSOLUTE target = nullptr;
  CHECK(link->GetIDList(&target) == S_OK);
  CHECK(SHGetPathFromIDListW(target, text));
  CoTaskMemFree(target);
  CHECK(std::wstring(text) == shortcut.TargetPath);
  link->GetDescription(text, MAX_PATH);
  CHECK(std::wstring(text) == shortcut.Description);
  link->GetWorkingDirectory(text, MAX_PATH);
  CHECK(std::wstring(text) == shortcut.WorkingDirectory);
  int index = -1;
  link->GetIconLocation(text, MAX_PATH, &index);
  CHECK(std::wstring(text) == shortcut.TargetPath);
  CHECK(index == 0);
  WORD hotkey = 0;
  link->GetHotkey(&hotkey);
  CHECK(hotkey == HotkeyCode(L"CTRL+SHIFT+L"));
  int show = 0;
  link->GetShowCmd(&show);
  CHECK(show == SW_SHOWNORMAL);

  shortcut.File = folder / L"none\\Vantor.lnk";
  CHECK_FALSE(shell.Script.SaveShortcut(shortcut));
}

TEST_CASE("hot keys") {
  const std::pair<const wchar_t*, int> keys[] = {{L"CTRL+SHIFT+L", 0x034C},
                                                 {L"ALT+F4", 0x0473},
                                                 {L"7", 0x37},
                                                 {L"F24", 0x87},
                                                 {L"F25", 0},
                                                 {L"HYPER+A", 0},
                                                 {L"", 0},
                                                 {L"CTRL+", 0}};
  for (const auto& [text, code] : keys) CHECK(HotkeyCode(text) == code);
}

TEST_CASE("letter case follows the user's language, below 128 the alphabet alone") {
  const Language language;
  CHECK(language.Lower(L"VANTOR [I] \x00C4\x0416") == L"vantor [i] \x00E4\x0436");
  CHECK(language.Upper(L"vantor {i} \x00E4\x0436") == L"VANTOR {I} \x00C4\x0416");
  CHECK(language.Lower(L"").empty());
  for (int i = 1; i < 0x10000; i += 7) {
    const std::wstring one(1, static_cast<wchar_t>(i));
    REQUIRE(language.Lower(one).size() == 1);
    REQUIRE(language.Upper(one).size() == 1);
  }
}

TEST_CASE("the code page takes what it holds and no more") {
  const Language language;
  CHECK(language.FromCodePage("plain \"text\"\r\n") == L"plain \"text\"\r\n");
  CHECK(language.ToCodePage(L"plain") == "plain");
  CHECK(language.ToCodePage(L"") == "");
  // No code page has a half character.
  CHECK_FALSE(language.ToCodePage(L"a\xD800z"));
  if (GetACP() != 1252) return;
  CHECK(language.ToCodePage(L"\x00E4\x20AC") == "\xE4\x80");
  CHECK(language.FromCodePage("\xE4\x80") == L"\x00E4\x20AC");
  for (const wchar_t* foreign : {L"\x4E2D", L"\x0416", L"\x0100", L"a\xD83D\xDE00"})
    CHECK_FALSE(language.ToCodePage(foreign));
}

TEST_CASE("disk C: tells who it is, the same each time") {
  const auto first = Management().ReadDiskIdentity();
  REQUIRE(first);
  CHECK(first->DriveType == 3);
  CHECK(first->VolumeSerialNumber.size() == 8);
  CHECK(first->Size > 1e6);
  const auto second = Management().ReadDiskIdentity();
  REQUIRE(second);
  CHECK(second->VolumeSerialNumber == first->VolumeSerialNumber);
  CHECK(second->Size == first->Size);
}
