#pragma once

#include <string>
#include <string_view>

#include "win32/base/Handle.h"

namespace vantor::win32 {

/// Makes sure that a program's file runs only once per user and session.
class Instance {
 public:
  /// `name` distinguishes the program from others; it must not contain a backslash.
  explicit Instance(std::wstring_view name) : name_(name) {}
  ~Instance();
  Instance(const Instance&) = delete;
  Instance& operator=(const Instance&) = delete;

  /// Whether another copy seems to be running: some process holds the name by which copies recognise each other. Once
  /// this returns false, this copy holds the name.
  [[nodiscard]] bool OtherRuns();

 private:
  std::wstring name_;
  KernelHandle mutex_;
  bool owned_ = false;
};

/// Whether a bar was brought to the front, or there is no application window with the title, or it has no bar yet. Only
/// windows count that have the program's mark and whose process runs the same file.
enum class Activation { NoWindow, NoBar, Done };
/// Restores the bar in front of the application window with this title and brings it to the front.
[[nodiscard]] Activation ActivateBar(std::wstring_view title);

}  // namespace vantor::win32
