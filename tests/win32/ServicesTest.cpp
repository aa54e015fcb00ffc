#include <doctest/doctest.h>

#include <memory>

#include "TestFolder.h"
#include "desktop/System.h"
#include "win32/DropTarget.h"
#include "win32/Handle.h"
#include "win32/Language.h"
#include "win32/Patience.h"
#include "win32/Processes.h"
#include "win32/RegistryValue.h"
#include "win32/ScriptShell.h"
#include "win32/ShortcutFile.h"
#include "win32/SpecialFolders.h"
#include "win32/WindowPicker.h"
#include "win32/WindowsServices.h"

using namespace vantor::win32;
using vantor::desktop::Narrow;
using vantor::service::WindowId;

namespace {

std::wstring OwnPath() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return path;
}

}  // namespace

TEST_CASE("every special folder is found, by the scripting shell or without it") {
  Apartment com;
  ScriptShell shell(com);
  for (const wchar_t* name : {L"AllUsersDesktop", L"AllUsersStartMenu", L"AllUsersPrograms", L"AllUsersStartup",
                              L"Desktop", L"Favorites", L"Fonts", L"MyDocuments", L"NetHood", L"PrintHood", L"Programs",
                              L"Recent", L"SendTo", L"StartMenu", L"Startup", L"Templates"}) {
    const std::wstring path = shell.SpecialFolder(name);
    CAPTURE(std::string(path.begin(), path.end()));
    CHECK(path.find(L":\\") == 1);
    CHECK(path == PlainSpecialFolder(name));
  }
  CHECK(shell.SpecialFolder(L"nosuch").empty());
  CHECK(shell.SpecialFolder(L"").empty());
}

TEST_CASE("registry values are written, read and deleted in both ways alike, and everything else is silence") {
  Apartment com;
  ScriptShell shell(com);
  const std::wstring key = L"HKEY_CURRENT_USER\\Software\\Vantor Test";
  const std::wstring name = key + L"\\Orbels\x00C4\x4E2D";
  const std::wstring value = L"C:\\Program Files\\\x4E2D\\Vantor.exe";
  const auto check = [&](const std::wstring& what, const std::wstring& expected) {
    CHECK(shell.RegistryRead(what) == expected);
    CHECK(PlainRegistryRead(what) == expected);
  };
  shell.RegistryWrite(name, value);
  check(name, value);
  shell.RegistryDelete(name);
  check(name, L"");
  PlainRegistryWrite(name, value);
  check(name, value);
  PlainRegistryDelete(name);
  check(name, L"");

  const DWORD number = 42;
  RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Vantor Test", L"n", REG_DWORD, &number, sizeof number);
  check(key + L"\\n", L"42");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Vantor Test");
  for (const std::wstring& bad :
       {std::wstring(), std::wstring(L"nonsense"), std::wstring(L"HKEY_NONE\\a\\b"), key + L"\\none"}) {
    shell.RegistryDelete(bad);
    PlainRegistryDelete(bad);
    check(bad, L"");
  }
}

TEST_CASE("a shortcut is saved for any letters and keys, and stands for its target as long as that is there") {
  Apartment com;
  ScriptShell shell(com);
  const TestFolder folder;
  vantor::service::Shortcut shortcut;
  shortcut.File = folder / L"link.LNK";
  for (const wchar_t* name : {L"V\x00E4ntor \x4E2D\x0416.exe", L"Vantor.exe"}) {
    shortcut.TargetPath = folder.Make(name);
    CHECK(shell.SaveShortcut(shortcut));
    CHECK(vantor::desktop::Shortcut(Narrow(shortcut.File)).Text().starts_with(Narrow(shortcut.TargetPath) + '\n'));
  }
  CHECK(ShortcutTarget(shortcut.File) == shortcut.TargetPath);
  CHECK(ShortcutTarget(shortcut.TargetPath) == shortcut.TargetPath);
  DeleteFileW(shortcut.TargetPath.c_str());
  CHECK(ShortcutTarget(shortcut.File) == shortcut.File);
  const std::wstring broken = folder.Make(L"broken.lnk", "no shortcut");
  CHECK(ShortcutTarget(broken) == broken);
  shortcut.File = folder / L"none\\Vantor.lnk";
  CHECK_FALSE(shell.SaveShortcut(shortcut));

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

TEST_CASE("letter case follows the user's language, and the code page takes what it holds and no more") {
  const Language language;
  CHECK(language.Lower(L"VANTOR [I] \x00C4\x0416") == L"vantor [i] \x00E4\x0436");
  CHECK(language.Upper(L"vantor {i} \x00E4\x0436") == L"VANTOR {I} \x00C4\x0416");
  CHECK(language.Lower(L"").empty());
  CHECK(language.ToCodePage(L"") == "");
  // No code page has a half character.
  CHECK_FALSE(language.ToCodePage(L"a\xD800z"));
  SKIP_UNLESS(GetACP() == 1252, "the Western code page");
  CHECK(language.ToCodePage(L"\"\x00E4\x20AC\"\r\n") == "\"\xE4\x80\"\r\n");
  CHECK(language.FromCodePage("\xE4\x80") == L"\x00E4\x20AC");
  for (const wchar_t* foreign : {L"\x4E2D", L"\x0416", L"\x0100", L"a\xD83D\xDE00"})
    CHECK_FALSE(language.ToCodePage(foreign));
}

TEST_CASE("the service and Windows both tell where a process has its program") {
  Processes processes;
  const auto managed = processes.ManagedProcesses();
  REQUIRE(managed);
  const auto own = std::find_if(managed->begin(), managed->end(),
                                [](const auto& process) { return process.ProcessId == GetCurrentProcessId(); });
  REQUIRE(own != managed->end());
  CHECK(own->ExecutablePath == OwnPath());
  CHECK(processes.ImageName(GetCurrentProcessId()) == OwnPath());
  CHECK(processes.ImageName(3).empty());

  WindowsServices services(L"Vantor Test", [](std::wstring_view) {});
  auto& system = services.All().System;
  CHECK(system.ProgramFolder() == OwnPath().substr(0, OwnPath().rfind(L'\\')));
  CHECK(services.All().FileSystem.FileExists(system.WindowsDirectory() + L"\\explorer.exe"));
}

TEST_CASE("the mark stands around a window, is not felt by the mouse, and goes") {
  WindowPicker picker;
  const WindowHandle window(CreateWindowExW(WS_EX_TOPMOST, L"BUTTON", L"", WS_POPUP | WS_VISIBLE, 100, 100, 200, 100,
                                            nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  const auto id = WindowId{reinterpret_cast<std::uintptr_t>(window.Get())};
  const auto marked = [] { return FindWindowW(L"VantorMark", nullptr) != nullptr; };
  CHECK(picker.ProcessOfWindow(id) == GetCurrentProcessId());
  for (const auto other : {WindowId{reinterpret_cast<std::uintptr_t>(GetDesktopWindow())}, WindowId::None}) {
    picker.Mark(id);
    CHECK(marked());
    CHECK(picker.WindowFromPoint({101, 150}) == id);
    picker.Mark(other);
    CHECK_FALSE(marked());
  }
  CHECK(picker.ProcessOfWindow(WindowId::None) == 0);
}

TEST_CASE("work that ends is waited for, work that does not for five seconds at most") {
  bool done = false;
  CHECK(EndsInTime([&] { done = true; }));
  CHECK(done);

  // As with a service that never answers: the work goes on behind, and comes to its end later.
  const auto answer = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const auto ended = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const DWORD begin = GetTickCount();
  CHECK_FALSE(EndsInTime([answer, ended] {
    WaitForSingleObject(answer->Get(), INFINITE);
    SetEvent(ended->Get());
  }));
  CHECK(GetTickCount() - begin >= 4900);
  SetEvent(answer->Get());
  CHECK(WaitForSingleObject(ended->Get(), 20000) == WAIT_OBJECT_0);
}
