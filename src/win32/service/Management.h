#pragma once

#include <optional>

#include "service/Management.h"
#include "win32/base/Patience.h"

namespace vantor::win32 {

/// Asks the management service by its moniker, and Windows itself where there is no such service.
class Management final : public service::Management {
 public:
  [[nodiscard]] std::optional<service::DiskIdentity> ReadDiskIdentity() override;

 private:
  Patience patience_;
};

}  // namespace vantor::win32
