#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantor::service {

/// One process of a snapshot: the ANSI form of the system's record, with the system's names.
struct ProcessEntry {
  std::uint32_t dwSize = 0;
  std::uint32_t cntUsage = 0;
  std::uint32_t th32ProcessID = 0;
  std::uintptr_t th32DefaultHeapID = 0;
  std::uint32_t th32ModuleID = 0;
  std::uint32_t cntThreads = 0;
  std::uint32_t th32ParentProcessID = 0;
  std::int32_t pcPriClassBase = 0;
  std::uint32_t dwFlags = 0;
  std::array<char, 260> szExeFile{};
};

/// One process as reported by the management service.
struct ManagedProcess {
  std::uint32_t ProcessId = 0;
  std::optional<std::wstring> ExecutablePath;  // nothing if the service returns Null, as for protected processes
};

/// The running processes.
class Processes {
 public:
  virtual ~Processes() = default;

  /// The processes of a new snapshot; empty if the system returns none.
  [[nodiscard]] virtual std::vector<ProcessEntry> CreateSnapshot() = 0;

  /// The instances of "Win32_Process"; nothing if the management service can't be reached, or does not answer
  /// within 5 seconds.
  [[nodiscard]] virtual std::optional<std::vector<ManagedProcess>> ManagedProcesses() = 0;
  /// The path of a process's program by the plain Windows call; "" if that fails.
  [[nodiscard]] virtual std::wstring ImageName(std::uint32_t processId) = 0;
};

}  // namespace vantor::service
