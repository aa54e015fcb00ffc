// desktop: --root win32
// desktop: --root win64

#include <doctest/doctest.h>

#include <shlobj.h>

#include <memory>

#include "TestFolder.h"
#include "win32/base/Com.h"
#include "win32/base/Handle.h"
#include "win32/base/TimedWork.h"
#include "win32/service/Language.h"
#include "win32/service/PlainShell.h"
#include "win32/service/Processes.h"
#include "win32/service/ScriptShell.h"
#include "win32/service/WindowPicker.h"
#include "win32/service/WindowsServices.h"
#include "win32/window/DropTarget.h"

using namespace vantor::win32;
using vantor::service::WindowId;

namespace {

std::wstring OwnPath() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return path;
}

/// What Explorer drags for a file.
ComPointer<IDataObject> DraggedFile(const std::wstring& path) {
  ITEMIDLIST* item = nullptr;
  REQUIRE(SUCCEEDED(SHParseDisplayName(path.c_str(), nullptr, &item, 0, nullptr)));
  ComPointer<IShellFolder> folder;
  const ITEMIDLIST* child = nullptr;
  REQUIRE(SUCCEEDED(SHBindToParent(item, IID_IShellFolder, folder.PutVoid(), &child)));
  ComPointer<IDataObject> data;
  REQUIRE(SUCCEEDED(folder->GetUIObjectOf(nullptr, 1, &child, IID_IDataObject, nullptr, data.PutVoid())));
  CoTaskMemFree(item);
  return data;
}

struct OleMember {
  OleMember() { OleInitialize(nullptr); }
  ~OleMember() { OleUninitialize(); }
};

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

TEST_CASE("the registry is read in both ways alike, and everything that is not there is silence") {
  Apartment com;
  ScriptShell shell(com);
  const std::wstring key = L"HKEY_CURRENT_USER\\Software\\Vantor Test";
  const std::wstring name = key + L"\\Orbels\x00C4\x4E2D";
  shell.RegistryWrite(name, L"C:\\\x4E2D");
  const std::pair<std::wstring, std::wstring> rows[] = {
      {name, L"C:\\\x4E2D"}, {key + L"\\none", L""}, {L"nonsense", L""}, {L"HKEY_NONE\\a\\b", L""}};
  for (const auto& [what, expected] : rows) {
    CHECK(shell.RegistryRead(what) == expected);
    CHECK(PlainRegistryRead(what) == expected);
    if (expected.empty()) shell.RegistryDelete(what);
    PlainRegistryDelete(what);
    CHECK(shell.RegistryRead(what).empty());
  }
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Vantor Test");
}

TEST_CASE("a shortcut is saved for any letters and keys, and stands for its target as long as that is there") {
  Apartment com;
  ScriptShell shell(com);
  const TestFolder folder;
  vantor::service::Shortcut shortcut;
  shortcut.File = folder / L"link.LNK";
  shortcut.Hotkey = L"CTRL+SHIFT+L";
  for (const std::wstring name : {L"V\x00E4ntor \x4E2D\x0416.exe", L"Vantor.exe"}) {
    shortcut.TargetPath = folder.Make(name);
    CHECK(shell.SaveShortcut(shortcut));
    const std::string bytes = DataFiles().Read(shortcut.File).Bytes.value();
    CHECK(bytes.find(vantor::desktop::Utf16(vantor::desktop::Narrow(name))) != std::string::npos);
    CHECK(bytes.substr(64, 2) == "L\x03");  // the hot key
  }
  CHECK(ShortcutTarget(shortcut.File) == shortcut.TargetPath);
  CHECK(ShortcutTarget(shortcut.TargetPath) == shortcut.TargetPath);
  DeleteFileW(shortcut.TargetPath.c_str());
  CHECK(ShortcutTarget(shortcut.File) == shortcut.File);
  if (vantor::desktop::On64Bit() && UnderWine()) {
    // What Windows' shell makes of "the folder of the programs" for a 32-bit program.
    const std::wstring there = L"C:\\Program Files\\only64.exe";
    std::ofstream(std::filesystem::path(there)).close();
    shortcut.TargetPath = L"C:\\Program Files (x86)\\only64.exe";
    CHECK(shell.SaveShortcut(shortcut));
    CHECK(ShortcutTarget(shortcut.File) == there);
  }
  const std::wstring broken = folder.Make(L"broken.lnk", "no shortcut");
  CHECK(ShortcutTarget(broken) == broken);
  shortcut.File = folder / L"none\\Vantor.lnk";
  CHECK_FALSE(shell.SaveShortcut(shortcut));
}

TEST_CASE("letter case follows the user's language, and the code page takes what it holds and no more") {
  const Language language;
  CHECK(language.Lower(L"VANTOR [I] \x00C4\x0416") == L"vantor [i] \x00E4\x0436");
  CHECK(language.Upper(L"vantor {i} \x00E4\x0436") == L"VANTOR {I} \x00C4\x0416");
  SKIP_UNLESS(GetACP() == 1252, "the Western code page");
  CHECK(language.ToCodePage(L"\"\x00E4\x20AC\"\r\n") == "\"\xE4\x80\"\r\n");
  // The third has a best fit; the last two have a half character.
  for (const wchar_t* foreign : {L"\x4E2D", L"\x0416", L"\x0100", L"a\xD83D\xDE00", L"a\xD800z"})
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
  if (vantor::desktop::On64Bit()) {
    // By the name under which a 32-bit program, and nobody else, sees the system's folder.
    const PROCESS_INFORMATION other = vantor::desktop::Start(R"(C:\windows\Sysnative\notepad.exe)");
    const std::wstring known = L"C:\\windows\\system32\\notepad.exe";
    const auto all = processes.ManagedProcesses().value();
    CHECK(std::any_of(all.begin(), all.end(), [&](const auto& process) {
      return process.ProcessId == other.dwProcessId && process.ExecutablePath == known;
    }));
    CHECK(processes.ImageName(other.dwProcessId) == known);
    TerminateProcess(other.hProcess, 0);
    CloseHandle(other.hProcess);
  }

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
  TimedWork work;
  bool done = false;
  CHECK(work.Run([&] { done = true; }));
  CHECK(done);

  // As with a service that never answers: the work goes on behind, and comes to its end later.
  const auto answer = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const auto ended = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const DWORD begin = GetTickCount();
  CHECK_FALSE(work.Run([answer, ended] {
    WaitForSingleObject(answer->Get(), INFINITE);
    SetEvent(ended->Get());
  }));
  CHECK(GetTickCount() - begin >= 4900);
  // Nothing more is asked meanwhile, so that not one thread after the other is left behind.
  const auto asked = std::make_shared<bool>(false);
  CHECK_FALSE(work.Run([asked] { *asked = true; }));
  CHECK_FALSE(*asked);
  SetEvent(answer->Get());
  CHECK(WaitForSingleObject(ended->Get(), 20000) == WAIT_OBJECT_0);
  CHECK(vantor::desktop::Eventually([&] { return work.Run([] {}); }));
}

TEST_CASE("files that are dropped on a window arrive, those it does not want don't") {
  const OleMember ole;
  const TestFolder folder;
  const std::wstring path = folder.Make(L"\x416 it's, a 'file'.txt");
  const WindowHandle window(
      CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  bool accepts = true;
  std::vector<std::wstring> taken;
  const DropRegistration registration(
      window.Get(), [&] { return accepts; }, [&](const vantor::form::DroppedItems& items) { taken = items.Paths; });
  const auto target = static_cast<IDropTarget*>(GetPropW(window.Get(), L"OleDropTargetInterface"));
  REQUIRE(target != nullptr);

  const ComPointer<IDataObject> data = DraggedFile(path);
  const auto drop = [&](DWORD allowed) {
    DWORD effect = allowed;
    target->DragEnter(data.Get(), 0, {}, &effect);
    effect = allowed;
    target->Drop(data.Get(), 0, {}, &effect);
    return effect;
  };
  CHECK(drop(DROPEFFECT_MOVE) == DROPEFFECT_NONE);
  CHECK(taken.empty());
  CHECK(drop(DROPEFFECT_MOVE | DROPEFFECT_COPY) == DROPEFFECT_COPY);
  CHECK(taken == std::vector<std::wstring>{path});
  accepts = false;
  CHECK(drop(DROPEFFECT_LINK) == DROPEFFECT_NONE);
}

TEST_CASE("a web link that is a file stands for its address") {
  const TestFolder folder;
  const auto address = [&](const wchar_t* name, const char* url) {
    return WebAddressIn(folder.Make(name, std::string("[InternetShortcut]\r\nURL=") + url + "\r\n"));
  };
  CHECK(address(L"site.URL", "https://example.org/?q=a,b") == L"https://example.org/?q=a,b");
  CHECK(address(L"game.url", "steam://run/1").empty());
  CHECK(address(L"site.txt", "https://example.org/").empty());
}
