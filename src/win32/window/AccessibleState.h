#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace vantor::win32 {

class ControlWindow;
class FormWindow;

/// What a screen reader is told of a window, in the terms of Windows' accessibility interface.
struct AccessibleState {
  long Role = 0;   // ROLE_SYSTEM_…
  long State = 0;  // STATE_SYSTEM_…
  std::wstring Name;
  std::wstring Value;  // what a box holds
  std::wstring Description;
  std::wstring Shortcut;        // the key that acts from everywhere on the form
  const wchar_t* Action = L"";  // what acting on it does
};

[[nodiscard]] AccessibleState StateOf(const ControlWindow& window);
[[nodiscard]] AccessibleState StateOf(const FormWindow& window);
/// The same for the window with this handle; nothing when it is none of this program's.
[[nodiscard]] std::optional<AccessibleState> StateOf(HWND handle);

/// The control's window with this handle, if it has parts that are read here; else null.
[[nodiscard]] ControlWindow* WindowWithParts(HWND handle);

/// Does what the state's Action says, after the caller has had its answer.
void ActOn(HWND handle);

}  // namespace vantor::win32
