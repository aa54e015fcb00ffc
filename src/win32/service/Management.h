#pragma once

#include <optional>

#include "service/Management.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

/// Asks the management service by its moniker. Nobody stands in for it: what Windows tells of a disk is not what it
/// tells, and the computer would be taken for another.
class Management final : public service::Management {
 public:
  [[nodiscard]] std::optional<service::DiskIdentity> ReadDiskIdentity() override;

 private:
  TimedWork timedWork_;
};

}  // namespace vantor::win32
