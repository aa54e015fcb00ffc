#pragma once

#include <string>
#include <string_view>

#include "message/MessageKey.h"

namespace vantor::message {

/// The routine that shows a message.
enum class Selector { User, Stop, List };

/// One message of the catalogue.
struct CatalogueEntry {
  message::Selector Selector;
  MessageKey Key;
  std::wstring_view Text;   // with words in braces, which ExpandText replaces
  std::wstring_view Title;  // "" stands for the user's name
  std::wstring_view Buttons = L"OK";
  std::wstring_view Inputs;
};

/// The message with this key if the selector has it, otherwise null.
[[nodiscard]] const CatalogueEntry* FindMessage(Selector selector, MessageKey key);

/// The text with the maker's addresses filled in. `companionsPresent`: at least one of the maker's other programs is
/// installed.
[[nodiscard]] std::wstring ExpandText(std::wstring_view text, bool companionsPresent);

/// The question whether to report the bug with this key.
[[nodiscard]] std::wstring BugReportText(std::wstring_view bugKey);

}  // namespace vantor::message
