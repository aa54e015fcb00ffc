#pragma once

#include <string>
#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"

namespace vantor::command {

/// The path of a special folder by its code word, regardless of case; the documents folder for any other word.
[[nodiscard]] std::wstring GetSpecialFolderPath(const service::Services& services, std::wstring_view word);

/// Whether the word is the name of a Control Panel page, regardless of case.
[[nodiscard]] bool IsControlPanelPage(const service::Services& services, std::wstring_view word);

/// Starts the Control Panel page of a code word, regardless of case. An unknown word starts nothing and is not a
/// failure. Returns "MessagePanelOpenError" if the page could not be started, otherwise "".
[[nodiscard]] message::MessageKey OpenControlPanelApplet(const service::Services& services, std::wstring_view word);

/// Dials a number through Windows Telephony. Returns "", or a complete sentence that says what failed.
[[nodiscard]] std::wstring DialNumber(const service::Services& services, std::wstring_view number);

}  // namespace vantor::command
