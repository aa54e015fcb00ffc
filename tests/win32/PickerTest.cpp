#include <doctest/doctest.h>

#include <windows.h>

#include <algorithm>
#include <string>

#include "win32/Handle.h"
#include "win32/Processes.h"
#include "win32/WindowPicker.h"

using namespace vantor;

namespace {

std::wstring OwnPath() {
  wchar_t path[MAX_PATH] = L"";
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  return path;
}

BOOL CALLBACK CountMark(HWND window, LPARAM count) {
  wchar_t name[32] = L"";
  GetClassNameW(window, name, 32);
  if (std::wstring(name) == L"VantorMark") ++*reinterpret_cast<int*>(count);
  return TRUE;
}

int Marks() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), CountMark, reinterpret_cast<LPARAM>(&count));
  return count;
}

}  // namespace

TEST_CASE("the service and Windows both tell where a process has its program") {
  win32::Processes processes;
  const auto managed = processes.ManagedProcesses();
  REQUIRE(managed);
  const auto own = std::find_if(managed->begin(), managed->end(),
                                [](const auto& process) { return process.ProcessId == GetCurrentProcessId(); });
  REQUIRE(own != managed->end());
  CHECK(own->ExecutablePath == OwnPath());
  CHECK(processes.ImageName(GetCurrentProcessId()) == OwnPath());
  CHECK(processes.ImageName(0).empty());
  CHECK(processes.ImageName(3).empty());
}

TEST_CASE("a snapshot of processes holds this one, with its record whole") {
  win32::Processes processes;
  constexpr std::uint32_t ProcessList = 2;
  const service::SnapshotId snapshot = processes.CreateSnapshot(ProcessList, 0);
  service::ProcessEntry entry;
  entry.dwSize = service::ProcessEntrySize;
  bool found = false;
  for (bool more = processes.First(snapshot, entry); more; more = processes.Next(snapshot, entry)) {
    if (entry.th32ProcessID != GetCurrentProcessId()) continue;
    found = true;
    CHECK(entry.cntThreads >= 1);
    const std::string name(entry.szExeFile.data());
    CHECK(OwnPath().ends_with(std::wstring(name.begin(), name.end())));
  }
  CHECK(found);
  processes.CloseSnapshot(snapshot);
}

TEST_CASE("the mark stands around a window, is not felt by the mouse, and goes") {
  win32::WindowPicker picker;
  const win32::WindowHandle window(CreateWindowExW(WS_EX_TOPMOST, L"BUTTON", L"", WS_POPUP | WS_VISIBLE, 100, 100, 200,
                                                   100, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr));
  const auto id = service::WindowId{reinterpret_cast<std::uintptr_t>(window.Get())};
  CHECK(picker.ProcessOfWindow(id) == GetCurrentProcessId());
  for (const bool again : {false, true}) {
    CAPTURE(again);
    picker.Mark(id);
    CHECK(Marks() == 4);
    CHECK(picker.WindowFromPoint({101, 150}) == id);
  }
  picker.Mark(service::WindowId{reinterpret_cast<std::uintptr_t>(GetDesktopWindow())});
  CHECK(Marks() == 0);
  picker.Mark(id);
  picker.Mark(service::WindowId::None);
  CHECK(Marks() == 0);
  CHECK(picker.ProcessOfWindow(service::WindowId::None) == 0);
}
