#pragma once

#include <optional>

#include "service/Management.h"

namespace vantor::win32 {

/// Asks the management service by its moniker. The question is put on a thread of its own, the only one beside
/// the user interface's: a broken service may never answer. After 5 seconds it is left behind, and what it
/// finds out later goes nowhere. Windows are painted meanwhile; input waits.
class Management final : public service::Management {
 public:
  [[nodiscard]] std::optional<service::DiskIdentity> ReadDiskIdentity() override;
};

}  // namespace vantor::win32
