#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "win32/base/Com.h"
#include "win32/base/TimedWork.h"

namespace vantor::win32 {

/// What became of a question to the management service. With no value and no failure, the time was up first.
template <class Value>
struct ServiceAnswer {
  std::optional<Value> Found;
  bool Failed = false;
};

/// Asks the management service, on a thread and in an apartment of its own (see TimedWork). Whatever `ask` throws
/// counts as a failure.
template <class Value>
[[nodiscard]] ServiceAnswer<Value> AskManagementService(TimedWork& work, Value (*ask)()) {
  const auto answer = std::make_shared<ServiceAnswer<Value>>();  // the asker may have left by then
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
