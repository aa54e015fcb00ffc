#include "win32/service/Processes.h"

#include <windows.h>

// The ANSI form of the records is needed, which this header defines only without UNICODE.
#undef UNICODE
#include <tlhelp32.h>

#include <bit>
#include <utility>

#include "win32/base/ManagementService.h"
#include "win32/base/TrueSystemFolder.h"
#include "win32/service/ProcessImage.h"

namespace vantor::win32 {

namespace {

HANDLE HandleOf(service::SnapshotId snapshot) {
  return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(snapshot));
}

/// Passes the record to an enumeration call in the system's own type, and converts it back.
template <class Call>
bool Fill(Call call, service::SnapshotId snapshot, service::ProcessEntry& entry) {
  static_assert(sizeof(PROCESSENTRY32) == service::ProcessEntrySize);
  auto record = std::bit_cast<PROCESSENTRY32>(entry);
  const bool filled = call(HandleOf(snapshot), &record) != FALSE;
  if (filled) entry = std::bit_cast<service::ProcessEntry>(record);
  return filled;
}

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

service::SnapshotId Processes::CreateSnapshot(std::uint32_t flags, std::uint32_t processId) {
  return service::SnapshotId{reinterpret_cast<std::uintptr_t>(CreateToolhelp32Snapshot(flags, processId))};
}

bool Processes::First(service::SnapshotId snapshot, service::ProcessEntry& entry) {
  return Fill(Process32First, snapshot, entry);
}

bool Processes::Next(service::SnapshotId snapshot, service::ProcessEntry& entry) {
  return Fill(Process32Next, snapshot, entry);
}

void Processes::CloseSnapshot(service::SnapshotId snapshot) { CloseHandle(HandleOf(snapshot)); }

std::optional<std::vector<service::ManagedProcess>> Processes::ManagedProcesses() {
  return AskManagementService(timedWork_, AskService).Found;
}

std::wstring Processes::ImageName(std::uint32_t processId) { return KnownPath(win32::ImageName(processId)); }

}  // namespace vantor::win32
