#pragma once

#include <string>
#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"

namespace vantor::command {

/// The path of a special folder by its code word, in any letter case; that of the documents for any other word.
[[nodiscard]] std::wstring GetSpecialFolderPath(const service::Services& services, std::wstring_view word);

/// Whether the word, in any letter case, is one that a Control Panel page belongs to.
[[nodiscard]] bool IsControlPanelPage(const service::Services& services, std::wstring_view word);

/// Starts the Control Panel page of a code word, in any letter case; an unknown word starts nothing and is no
/// failure. Returns "MessagePanelOpenError" when it could not be started, else "".
[[nodiscard]] message::MessageKey OpenControlPanelApplet(const service::Services& services, std::wstring_view word);

/// Dials by Windows Telephony. Returns "", or a finished sentence that says what failed.
[[nodiscard]] std::wstring DialNumber(const service::Services& services, std::wstring_view number);

}  // namespace vantor::command
