#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace vantor::win32 {

class ControlWindow;
class FormWindow;

/// What a screen reader is told about a window, in the terms of Windows' accessibility interface.
struct AccessibleState {
  long Role = 0;   // ROLE_SYSTEM_…
  long State = 0;  // STATE_SYSTEM_…
  std::wstring Name;
  std::wstring Value;  // the contents of a box
  std::wstring Description;
  std::wstring Shortcut;        // the key that works anywhere on the form
  const wchar_t* Action = L"";  // what its default action is called
};

[[nodiscard]] AccessibleState StateOf(const ControlWindow& window);
[[nodiscard]] AccessibleState StateOf(const FormWindow& window);
/// The same for the window with this handle; nothing if it does not belong to this program.
[[nodiscard]] std::optional<AccessibleState> StateOf(HWND handle);

/// The control's window with this handle if it provides its parts itself, otherwise null.
[[nodiscard]] ControlWindow* WindowWithParts(HWND handle);

/// Performs the default action, after the caller has its answer.
void ActOn(HWND handle);

}  // namespace vantor::win32
