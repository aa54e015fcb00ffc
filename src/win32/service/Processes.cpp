#include "win32/service/Processes.h"

#include <windows.h>

// The ANSI form of the records is needed, which this header defines only without UNICODE.
#undef UNICODE
#include <tlhelp32.h>

#include <bit>
#include <utility>

#include "win32/base/Handle.h"
#include "win32/base/ManagementService.h"
#include "win32/base/ProcessImage.h"
#include "win32/base/TrueSystemFolder.h"

namespace vantor::win32 {

namespace {

std::vector<service::ManagedProcess> AskService() {
  ComPointer<IDispatch> services;
  Check(CoGetObject(L"winmgmts:", nullptr, IID_IDispatch, services.PutVoid()));
  const Variant className(L"Win32_Process");
  const LateBound instances = LateBound(std::move(services)).Object(L"InstancesOf", {className});
  const Variant all = instances.Get(L"_NewEnum");
  if (all.vt != VT_UNKNOWN && all.vt != VT_DISPATCH) throw ComError(false);
  ComPointer<IEnumVARIANT> walk;
  Check(all.punkVal->QueryInterface(IID_IEnumVARIANT, walk.PutVoid()));

  std::vector<service::ManagedProcess> processes;
  for (;;) {
    Variant next;
    ULONG fetched = 0;
    if (walk->Next(1, &next, &fetched) != S_OK || fetched == 0) return processes;
    if (next.vt != VT_DISPATCH) continue;
    const LateBound process(ComPointer<IDispatch>(std::exchange(next.pdispVal, nullptr)));
    next.vt = VT_EMPTY;
    const auto id = process.Get(L"ProcessId").Number();
    auto path = process.Get(L"ExecutablePath").Text();
    if (path) path = KnownPath(std::move(*path));
    if (id) processes.push_back({static_cast<std::uint32_t>(*id), std::move(path)});
  }
}

}  // namespace

std::vector<service::ProcessEntry> Processes::CreateSnapshot() {
  std::vector<service::ProcessEntry> entries;
  // The flags ask for no kind of entry, not even for the process list: it is up to the system what such a snapshot
  // contains. The paths do not depend on it.
  const FileHandle snapshot(CreateToolhelp32Snapshot(0, 0));
  PROCESSENTRY32 entry{sizeof entry};
  for (BOOL filled = Process32First(snapshot.Get(), &entry); filled; filled = Process32Next(snapshot.Get(), &entry)) {
    entries.push_back(std::bit_cast<service::ProcessEntry>(entry));
  }
  return entries;
}

std::optional<std::vector<service::ManagedProcess>> Processes::ManagedProcesses() {
  return AskManagementService(timedWork_, AskService).Found;
}

std::wstring Processes::ImageName(std::uint32_t processId) { return KnownPath(win32::ImageName(processId)); }

}  // namespace vantor::win32
