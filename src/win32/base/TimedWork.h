#pragma once

#include <functional>
#include <memory>

namespace vantor::win32 {

/// Runs work that may never end, such as questions to a broken service.
class TimedWork {
 public:
  /// Runs the work on a separate thread, the only kind of thread besides that of the user interface. After 5 seconds
  /// the work is abandoned and this returns false; so the work must own everything it uses. It must not throw.
  /// Meanwhile windows are painted, but input waits. While abandoned work is still running, this returns false at once.
  [[nodiscard]] bool Run(std::function<void()> work);

 private:
  std::weak_ptr<void> left_;  // valid as long as the last work is running
};

}  // namespace vantor::win32
