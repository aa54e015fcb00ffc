#pragma once

#include <functional>
#include <memory>

namespace vantor::win32 {

/// For work that may never end, such as questions to a broken service.
class TimedWork {
 public:
  /// Runs the work on a thread of its own, the only kind of thread beside the user interface's. After 5 seconds it is
  /// left behind and this returns false; so the work must own all that it touches. It may not throw. Windows are
  /// painted meanwhile; input waits. While work that was left behind still runs, this returns false at once.
  [[nodiscard]] bool Run(std::function<void()> work);

 private:
  std::weak_ptr<void> left_;  // there as long as the last work runs
};

}  // namespace vantor::win32
