#pragma once

#include <string>
#include <string_view>

#include "win32/base/Handle.h"

namespace vantor::win32 {

/// The one copy of a program's file that runs for a user in a session.
class Instance {
 public:
  /// `name` tells the program from others; there may be no backslash in it.
  explicit Instance(std::wstring_view name) : name_(name) {}
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  /// Whether another copy seems to run: some process holds the name by which copies know each other. As soon as this is
  /// false this copy is the one that others see.
  [[nodiscard]] bool OtherRuns();

 private:
  std::wstring name_;
  KernelHandle mutex_;
  bool owned_ = false;
};

/// Whether a bar was brought to the front; there may be no application window of the title, or it has no bar yet. Only
/// a window counts that has the program's mark and whose process runs the same file.
enum class Activation { NoWindow, NoBar, Done };
/// Restores and brings to the front the bar that stands before the application window of this title.
[[nodiscard]] Activation ActivateBar(std::wstring_view title);

}  // namespace vantor::win32
