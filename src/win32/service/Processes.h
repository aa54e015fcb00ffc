#pragma once

#include "service/Processes.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

class Processes final : public service::Processes {
 public:
  [[nodiscard]] service::SnapshotId CreateSnapshot(std::uint32_t flags, std::uint32_t processId) override;
  [[nodiscard]] bool First(service::SnapshotId snapshot, service::ProcessEntry& entry) override;
  [[nodiscard]] bool Next(service::SnapshotId snapshot, service::ProcessEntry& entry) override;
  void CloseSnapshot(service::SnapshotId snapshot) override;

  [[nodiscard]] std::optional<std::vector<service::ManagedProcess>> ManagedProcesses() override;
  [[nodiscard]] std::wstring ImageName(std::uint32_t processId) override;

 private:
  TimedWork timedWork_;
};

}  // namespace vantor::win32
