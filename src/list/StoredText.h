#pragma once

#include <string>
#include <string_view>

#include "list/LaunchList.h"

namespace vantor::list {

/// Whether a text is saved otherwise than it stands.
[[nodiscard]] inline bool HasQuote(std::wstring_view text) { return text.find(L'"') != text.npos; }

/// A name, or a target of a group, as the list files hold it. A record can't hold a double quote, which would end the
/// field and with it the reading of all records after it: it is written as a single one, and as %22 in web addresses.
[[nodiscard]] std::wstring StoredName(std::wstring_view name);
[[nodiscard]] std::wstring StoredTarget(LaunchGroup group, std::wstring_view target);

}  // namespace vantor::list
