#pragma once

#include <string>
#include <string_view>

namespace vantor::service {

/// Where the program runs, and the other copy of it.
class System {
 public:
  virtual ~System() = default;

  /// `GetWindowsDirectory`; "" when it fails.
  [[nodiscard]] virtual std::wstring WindowsDirectory() = 0;
  /// The folder of the program's file, without a trailing backslash unless it is a drive's root.
  [[nodiscard]] virtual std::wstring ProgramFolder() = 0;

  /// Whether another copy of the program runs for this user.
  [[nodiscard]] virtual bool PreviousInstance() = 0;
  /// Names this copy's hidden application window, by which another copy finds it.
  virtual void SetTitle(std::wstring_view title) = 0;
  /// Restores the bar of the copy whose application window has this title, and brings it to the front. False
  /// when there is no such window.
  [[nodiscard]] virtual bool ActivateInstance(std::wstring_view title) = 0;

 protected:
  System() = default;
  System(const System&) = default;
  System& operator=(const System&) = default;
};

}  // namespace vantor::service
