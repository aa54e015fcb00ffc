#pragma once

#include <string>
#include <string_view>

namespace vantor::service {

/// The places of Windows and the program, and other running copies of the program.
class System {
 public:
  virtual ~System() = default;

  /// `GetWindowsDirectory`; "" if it fails.
  [[nodiscard]] virtual std::wstring WindowsDirectory() = 0;
  /// The folder of the program's file, without a trailing backslash unless it is a drive's root.
  [[nodiscard]] virtual std::wstring ProgramFolder() = 0;

  /// Whether another copy of the program is running for this user.
  [[nodiscard]] virtual bool PreviousInstance() = 0;
  /// Sets the title of this copy's hidden application window, by which other copies find it.
  virtual void SetTitle(std::wstring_view title) = 0;
  /// Restores the bar of the copy whose application window has this title, and brings it to the front. Returns
  /// false if there is no such window.
  [[nodiscard]] virtual bool ActivateInstance(std::wstring_view title) = 0;
};

}  // namespace vantor::service
