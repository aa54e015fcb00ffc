#pragma once

#include <algorithm>
#include <map>
#include <string_view>

#include "service/Processes.h"

namespace vantor::fake {

class FakeProcesses : public service::Processes {
 public:
  std::vector<service::ProcessEntry> Entries;
  service::SnapshotId Snapshot{77};
  bool ServiceReachable = true;
  std::vector<service::ManagedProcess> Managed;
  std::map<std::uint32_t, std::wstring> ImageNames;

  std::uint32_t Flags = 99;  // of the last snapshot
  std::uint32_t SizeSeen = 0;
  int OpenSnapshots = 0;

  void AddEntry(std::uint32_t id, std::string_view name) {
    service::ProcessEntry entry;
    entry.th32ProcessID = id;
    entry.cntThreads = id + 1;
    std::copy(name.begin(), name.end(), entry.szExeFile.begin());
    Entries.push_back(entry);
  }

  service::SnapshotId CreateSnapshot(std::uint32_t flags, std::uint32_t /*processId*/) override {
    Flags = flags;
    if (Snapshot != service::SnapshotId::None) ++OpenSnapshots;
    next_ = 0;
    return Snapshot;
  }
  bool First(service::SnapshotId snapshot, service::ProcessEntry& entry) override { return Next(snapshot, entry); }
  bool Next(service::SnapshotId /*snapshot*/, service::ProcessEntry& entry) override {
    SizeSeen = entry.dwSize;
    if (next_ == Entries.size()) return false;
    const std::uint32_t size = entry.dwSize;
    entry = Entries[next_++];
    entry.dwSize = size;
    return true;
  }
  void CloseSnapshot(service::SnapshotId /*snapshot*/) override { --OpenSnapshots; }

  std::optional<std::vector<service::ManagedProcess>> ManagedProcesses() override {
    if (!ServiceReachable) return std::nullopt;
    return Managed;
  }
  std::wstring ImageName(std::uint32_t processId) override { return ImageNames[processId]; }

 private:
  std::size_t next_ = 0;
};

}  // namespace vantor::fake
