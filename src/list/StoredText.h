#pragma once

#include <string>
#include <string_view>

#include "list/LaunchList.h"

namespace vantor::list {

/// Whether a text contains a double quote, and is therefore saved in a changed form.
[[nodiscard]] inline bool HasQuote(std::wstring_view text) { return text.find(L'"') != text.npos; }

/// A name, or a target of a group, as it is saved in the list files. A record can't contain a double quote, which would
/// end the field and make all following records unreadable: it is written as a single quote, or as %22 in web
/// addresses.
[[nodiscard]] std::wstring StoredName(std::wstring_view name);
[[nodiscard]] std::wstring StoredTarget(LaunchGroup group, std::wstring_view target);

}  // namespace vantor::list
