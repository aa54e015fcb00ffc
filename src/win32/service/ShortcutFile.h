#pragma once

#include <string_view>

#include "service/ScriptShell.h"

namespace vantor::win32 {

/// The code of a hot key such as "CTRL+SHIFT+L", with the keys in the high byte that are held down meanwhile; 0
/// when it is none. The key itself is a letter, a digit or F1 to F24.
[[nodiscard]] unsigned short HotkeyCode(std::wstring_view hotkey);

/// Writes a shortcut by the shell's own object. Throws ComError.
void WriteShortcutFile(const service::Shortcut& shortcut);

}  // namespace vantor::win32
