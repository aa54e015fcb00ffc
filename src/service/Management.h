#pragma once

#include <optional>
#include <string>

namespace vantor::service {

/// The three values that identify a computer, taken from its disk C:.
struct DiskIdentity {
  int DriveType = 0;  // the management service's numbering; 3 is a local disk
  std::wstring VolumeSerialNumber;
  double Size = 0;  // bytes
};

/// Questions to the management service.
class Management {
 public:
  virtual ~Management() = default;

  /// The identity of disk C:; nothing if the service does not answer within 5 seconds. Throws std::runtime_error if it
  /// can't be read, for example because there is no such disk or service.
  [[nodiscard]] virtual std::optional<DiskIdentity> ReadDiskIdentity() = 0;
};

}  // namespace vantor::service
