#pragma once

#include <optional>

#include "service/Management.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

/// Asks the management service by its moniker. There is no substitute for it: plain Windows calls return different
/// values for a disk, and the computer would be mistaken for another.
class Management final : public service::Management {
 public:
  [[nodiscard]] std::optional<service::DiskIdentity> ReadDiskIdentity() override;

 private:
  TimedWork timedWork_;
};

}  // namespace vantor::win32
