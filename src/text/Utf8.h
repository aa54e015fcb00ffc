#pragma once

#include <string>
#include <string_view>

namespace vantor::text {

/// Appends text as UTF-8. Half of a surrogate pair, which a file name may hold, is kept in three bytes.
void AppendUtf8(std::string& bytes, std::wstring_view text);

/// Text from UTF-8, with what AppendUtf8 kept. A byte that means nothing becomes U+FFFD.
[[nodiscard]] std::wstring FromUtf8(std::string_view bytes);

/// Whether all bytes are below 128.
[[nodiscard]] bool IsAscii(std::string_view bytes);

}  // namespace vantor::text
