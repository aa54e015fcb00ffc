#pragma once

#include <optional>
#include <string>

namespace vantor::service {

/// The three values by which a computer is known: those of its disk C:.
struct DiskIdentity {
  int DriveType = 0;  // the management service's numbering; 3 is a local disk
  std::wstring VolumeSerialNumber;
  double Size = 0;  // bytes
};

/// What the management service tells.
class Management {
 public:
  virtual ~Management() = default;

  /// The identity of disk C:; nothing when the service does not answer within 5 seconds. Throws
  /// std::runtime_error when it can't be read, as where there is no such disk, or no such service.
  [[nodiscard]] virtual std::optional<DiskIdentity> ReadDiskIdentity() = 0;

 protected:
  Management() = default;
  Management(const Management&) = default;
  Management& operator=(const Management&) = default;
};

}  // namespace vantor::service
