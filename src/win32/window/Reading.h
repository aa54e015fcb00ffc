#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace vantor::win32 {

class ControlWindow;
class FormWindow;

/// What a screen reader is told of a window, in the terms of Windows' accessibility interface.
struct Reading {
  long Role = 0;
  long State = 0;
  std::wstring Name;
  std::wstring Value;           // what a box holds
  std::wstring Shortcut;        // the key that acts from everywhere on the form
  const wchar_t* Action = L"";  // what acting on it does
};

[[nodiscard]] Reading ReadingOf(const ControlWindow& window);
[[nodiscard]] Reading ReadingOf(const FormWindow& window);
/// The same for the window with this handle; nothing when it is none of this program's.
[[nodiscard]] std::optional<Reading> ReadingOf(HWND handle);

/// Does what the reading's Action says, after the caller has had its answer.
void ActOn(HWND handle);

}  // namespace vantor::win32
