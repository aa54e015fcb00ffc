#include "add/clsActiveProcess.h"

#include <stdexcept>
#include <string_view>

namespace vantor::add {
namespace {

constexpr int GrowBy = 20;
// The flags ask for no kind of entry, not even for the process list: it is up to the system what such a snapshot
// contains. The paths do not depend on it.
constexpr std::uint32_t SnapshotFlags = 0;

/// A snapshot that is closed even if reading it fails.
struct Snapshot {
  explicit Snapshot(service::Processes& system) : Processes(system), Id(system.CreateSnapshot(SnapshotFlags, 0)) {}
  ~Snapshot() {
    if (Id != service::SnapshotId::None) Processes.CloseSnapshot(Id);
  }
  Snapshot(const Snapshot&) = delete;
  Snapshot& operator=(const Snapshot&) = delete;

  service::Processes& Processes;
  service::SnapshotId Id;
};

}  // namespace

std::wstring clsActiveProcess::szExeFile(int index) const {
  const auto& name = Record(index).szExeFile;
  std::wstring text = language_.FromCodePage(std::string_view(name.data(), name.size()));
  text.resize(name.size());
  return text;
}

int clsActiveProcess::GetActiveProcess() {
  count_ = 0;
  const Snapshot snapshot(processes_);
  if (snapshot.Id == service::SnapshotId::None) return 0;
  service::ProcessEntry entry;
  entry.dwSize = service::ProcessEntrySize;
  records_.assign(GrowBy + 1, {});  // record 0 is never filled
  for (bool filled = processes_.First(snapshot.Id, entry); filled; filled = processes_.Next(snapshot.Id, entry)) {
    ++count_;
    if (count_ % GrowBy == 0) records_.resize(static_cast<std::size_t>(count_) + GrowBy + 1);
    records_[static_cast<std::size_t>(count_)] = entry;
  }
  return count_;
}

const service::ProcessEntry& clsActiveProcess::Record(int index) const {
  if (index < 1 || index > count_) throw std::out_of_range("no such process record");
  return records_[static_cast<std::size_t>(index)];
}

}  // namespace vantor::add
