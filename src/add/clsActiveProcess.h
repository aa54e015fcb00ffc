#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "service/Language.h"
#include "service/Processes.h"

namespace vantor::add {

/// The processes running at one moment, as records 1 to n.
class clsActiveProcess {
 public:
  clsActiveProcess(service::Processes& processes, const service::Language& language)
      : processes_(processes), language_(language) {}

  // A field of record `index`; throws std::out_of_range beyond the records.

  /// Always 260 characters, with nulls after the name.
  [[nodiscard]] std::wstring szExeFile(int index) const;
  [[nodiscard]] std::uint32_t dwFlags(int index) const { return Record(index).dwFlags; }
  [[nodiscard]] std::int32_t pcPriClassBase(int index) const { return Record(index).pcPriClassBase; }
  [[nodiscard]] std::uint32_t th32ParentProcessID(int index) const { return Record(index).th32ParentProcessID; }
  [[nodiscard]] std::uint32_t cntThreads(int index) const { return Record(index).cntThreads; }
  [[nodiscard]] std::uint32_t th32ModuleID(int index) const { return Record(index).th32ModuleID; }
  [[nodiscard]] std::uintptr_t th32DefaultHeapID(int index) const { return Record(index).th32DefaultHeapID; }
  [[nodiscard]] std::uint32_t th32ProcessID(int index) const { return Record(index).th32ProcessID; }
  [[nodiscard]] std::uint32_t cntUsage(int index) const { return Record(index).cntUsage; }
  [[nodiscard]] std::uint32_t dwSize(int index) const { return Record(index).dwSize; }

  /// Takes a new snapshot and returns the number of records; 0 if the system returns none.
  int GetActiveProcess();

 private:
  [[nodiscard]] const service::ProcessEntry& Record(int index) const {
    return records_.at(static_cast<std::size_t>(index) - 1);
  }

  service::Processes& processes_;
  const service::Language& language_;
  std::vector<service::ProcessEntry> records_;
};

}  // namespace vantor::add
