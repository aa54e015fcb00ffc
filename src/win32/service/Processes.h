#pragma once

#include "service/Processes.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

class Processes final : public service::Processes {
 public:
  [[nodiscard]] std::vector<service::ProcessEntry> CreateSnapshot() override;
  [[nodiscard]] std::optional<std::vector<service::ManagedProcess>> ManagedProcesses() override;
  [[nodiscard]] std::wstring ImageName(std::uint32_t processId) override;

 private:
  TimedWork timedWork_;
};

}  // namespace vantor::win32
