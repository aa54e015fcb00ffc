#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "win32/base/Com.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

/// The answer of the management service. Neither a value nor a failure means that it did not answer in time.
template <class Value>
struct ServiceAnswer {
  std::optional<Value> Found;
  bool Failed = false;
};

/// Asks the management service on a separate thread with its own apartment (see TimedWork). Any exception from `ask`
/// counts as a failure.
template <class Value>
[[nodiscard]] ServiceAnswer<Value> AskManagementService(TimedWork& work, Value (*ask)()) {
  const auto answer = std::make_shared<ServiceAnswer<Value>>();  // shared, because the caller may have given up by then
  const bool inTime = work.Run([answer, ask] {
    try {
      Apartment apartment(COINIT_MULTITHREADED);
      apartment.Enter();
      answer->Found = ask();
    } catch (...) {
      answer->Failed = true;
    }
  });
  return inTime ? std::move(*answer) : ServiceAnswer<Value>();
}

}  // namespace vantor::win32
