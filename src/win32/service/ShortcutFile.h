#pragma once

#include <string_view>

#include "service/ScriptShell.h"

namespace vantor::win32 {

/// The code of a hot key such as "CTRL+SHIFT+L", with the modifier keys in the high byte; 0 if it is not one. The key
/// itself is a letter, a digit or F1 to F24.
[[nodiscard]] unsigned short HotkeyCode(std::wstring_view hotkey);

/// Writes a shortcut with the shell's own object. Throws ComError.
void WriteShortcutFile(const service::Shortcut& shortcut);

}  // namespace vantor::win32
