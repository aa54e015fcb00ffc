// desktop: --root win32
// desktop: --root win64

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "driver/Check.h"
#include "driver/Folder.h"
#include "driver/Window.h"
#include "win32/base/Com.h"
#include "win32/base/Handle.h"
#include "win32/base/TimedWork.h"
#include "win32/service/Management.h"
#include "win32/service/Processes.h"
#include "win32/service/ScriptShell.h"
#include "win32/service/WindowMark.h"
#include "win32/window/DropTarget.h"

namespace vantor::win32 {

using namespace desktop;

TEST_CASE("the scripting shell tells folders, and reads, writes and deletes in the registry; without it Windows does") {
  Apartment com;
  ScriptShell shell(com);
  const std::wstring key = L"HKEY_CURRENT_USER\\Software\\Vantor Test\\";
  std::vector<std::wstring> known;
  WithAndWithout(L"WScript.Shell", [&](bool with) {
    CAPTURE(with);
    std::vector<std::wstring> folders;
    for (const wchar_t* name : {L"AllUsersDesktop", L"AllUsersStartMenu", L"AllUsersPrograms", L"AllUsersStartup",
                                L"Desktop", L"Favorites", L"Fonts", L"MyDocuments", L"NetHood", L"PrintHood",
                                L"Programs", L"Recent", L"SendTo", L"StartMenu", L"Startup", L"Templates"}) {
      folders.push_back(shell.SpecialFolder(name));
      CHECK(folders.back().find(L":\\") == 1);
    }
    if (with) known = folders;
    CHECK(folders == known);
    for (const wchar_t* none : {L"nosuch", L""}) CHECK(shell.SpecialFolder(none).empty());
    shell.RegistryWrite(key + L"\x00C4\x4E2D", L"C:\\\x4E2D");
    const std::pair<std::wstring, std::wstring> rows[] = {
        {key + L"\x00C4\x4E2D", L"C:\\\x4E2D"}, {key + L"none", L""}, {L"nonsense", L""}, {L"HKEY_NONE\\a\\b", L""}};
    for (const auto& [name, value] : rows) {
      CHECK(shell.RegistryRead(name) == value);
      shell.RegistryDelete(name);
      CHECK(shell.RegistryRead(name).empty());
    }
  });
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Vantor Test");
}

TEST_CASE("a shortcut is saved for any letters and keys, and stands for its target as long as that is there") {
  Apartment com;
  ScriptShell shell(com);
  const Folder folder;
  service::Shortcut shortcut;
  shortcut.File = folder / L"link.LNK";
  shortcut.Hotkey = L"CTRL+SHIFT+L";
  WithAndWithout(L"WScript.Shell", [&](bool with) {
    CAPTURE(with);
    for (const std::wstring name : {L"V\u00E4ntor \u4E2D\u0416.exe", L"Vantor.exe"}) {
      shortcut.TargetPath = folder.Write(name);
      CHECK(shell.SaveShortcut(shortcut));
      const std::string bytes = BytesOf(shortcut.File);
      CHECK(bytes.find(Utf16(name)) != std::string::npos);
      CHECK(bytes.substr(64, 2) == "L\x03");  // the hot key
    }
  });
  CHECK(ShortcutTarget(shortcut.File) == shortcut.TargetPath);
  CHECK(ShortcutTarget(shortcut.TargetPath) == shortcut.TargetPath);
  DeleteFileW(shortcut.TargetPath.c_str());
  CHECK(ShortcutTarget(shortcut.File) == shortcut.File);
  if (On64Bit() && UnderWine()) {
    // The path that Windows' shell reports to a 32-bit program for "the folder of programs".
    const std::filesystem::path there = L"C:\\Program Files\\only64.exe";
    std::ofstream(there).close();
    shortcut.TargetPath = L"C:\\Program Files (x86)\\only64.exe";
    CHECK(shell.SaveShortcut(shortcut));
    CHECK(ShortcutTarget(shortcut.File) == there.wstring());
  }
  const std::wstring broken = folder.Write(L"broken.lnk", "no shortcut");
  CHECK(ShortcutTarget(broken) == broken);
}

TEST_CASE("the management service and Windows both tell where a process has its program") {
  Processes processes;
  const auto check = [&](DWORD id, const std::wstring& path) {
    const auto managed = processes.ManagedProcesses().value();
    const auto found = std::ranges::find(managed, id, &service::ManagedProcess::ProcessId);
    REQUIRE(found != managed.end());
    CHECK((found->ExecutablePath == path && processes.ImageName(id) == path));
  };
  check(GetCurrentProcessId(), OwnPath());
  CHECK(processes.ImageName(3).empty());
  if (On64Bit()) {
    // By the name of the system folder that exists only for 32-bit programs.
    const PROCESS_INFORMATION other = Start(LR"(C:\windows\Sysnative\notepad.exe)");
    check(other.dwProcessId, L"C:\\windows\\system32\\notepad.exe");
    TerminateProcess(other.hProcess, 0);
    CloseHandle(other.hProcess);
  }
}

TEST_CASE("disk C: tells who it is, and nobody does without the management service") {
  WithAndWithout(L"WinMgmts", [](bool with) {
    if (with) CHECK(Management().ReadDiskIdentity()->VolumeSerialNumber.size() == 8);
    if (!with) CHECK_THROWS_AS((void)Management().ReadDiskIdentity(), std::runtime_error);
  });
}

TEST_CASE("the mark around a window is not felt by the mouse, and there is none around the whole screen") {
  const WindowHandle window(window::Make(WS_EX_TOPMOST, {100, 100}, {200, 100}));
  ShowWindow(window.Get(), SW_SHOWNOACTIVATE);
  WindowMark mark;
  mark.Show(window.Get());
  CHECK(FindWindowW(L"VantorMark", nullptr) != nullptr);
  CHECK(WindowFromPoint({101, 150}) == window.Get());
  mark.Show(GetDesktopWindow());
  CHECK(FindWindowW(L"VantorMark", nullptr) == nullptr);
}

TEST_CASE("work that ends is waited for, work that does not for five seconds at most") {
  TimedWork work;
  bool done = false;
  CHECK((work.Run([&] { done = true; }) && done));
  // As with a service that does not answer: the work continues in the background and ends later.
  const auto answer = std::make_shared<KernelHandle>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const DWORD begin = GetTickCount();
  CHECK_FALSE(work.Run([answer] { WaitForSingleObject(answer->Get(), INFINITE); }));
  CHECK(GetTickCount() - begin >= 4900);
  // Nothing else is started meanwhile, so that abandoned threads do not pile up.
  CHECK((!work.Run([&] { done = false; }) && done));
  SetEvent(answer->Get());
  CHECK(Eventually([&] { return work.Run([] {}); }));
}

TEST_CASE("files that are dropped on a window arrive, those it does not want don't") {
  const Folder folder;
  const std::wstring path = folder.Write(L"\x416 it's, a 'file'.txt");
  const WindowHandle window(window::Make(0, {0, 0}, {10, 10}));
  bool accepts = true;
  std::vector<std::wstring> taken;
  const DropRegistration registration(
      window.Get(), [&] { return accepts; }, [&](const form::DroppedItems& items) { taken = items.Paths; });
  const auto target = static_cast<IDropTarget*>(GetPropW(window.Get(), L"OleDropTargetInterface"));
  REQUIRE(target != nullptr);

  // The data that Explorer drags for the file.
  ComPointer<IShellItem> item;
  REQUIRE(SUCCEEDED(SHCreateItemFromParsingName(path.c_str(), nullptr, IID_IShellItem, item.PutVoid())));
  ComPointer<IDataObject> data;
  REQUIRE(SUCCEEDED(item->BindToHandler(nullptr, BHID_DataObject, IID_IDataObject, data.PutVoid())));
  const auto drop = [&](DWORD allowed) {
    DWORD effect = allowed;
    target->DragEnter(data.Get(), 0, {}, &effect);
    effect = allowed;
    target->Drop(data.Get(), 0, {}, &effect);
    return effect;
  };
  CHECK((drop(DROPEFFECT_MOVE) == DROPEFFECT_NONE && taken.empty()));
  CHECK(drop(DROPEFFECT_MOVE | DROPEFFECT_COPY) == DROPEFFECT_COPY);
  CHECK(taken == std::vector<std::wstring>{path});
  accepts = false;
  CHECK(drop(DROPEFFECT_LINK) == DROPEFFECT_NONE);
}

TEST_CASE("a web link that is a file stands for its address") {
  const Folder folder;
  const auto address = [&](const wchar_t* name, const char* url) {
    return WebAddressIn(folder.Write(name, std::string("[InternetShortcut]\r\nURL=") + url + "\r\n"));
  };
  CHECK(address(L"site.URL", "https://example.org/?q=a,b") == L"https://example.org/?q=a,b");
  CHECK(address(L"game.url", "steam://run/1").empty());
  CHECK(address(L"site.txt", "https://example.org/").empty());
}

}  // namespace vantor::win32
