#pragma once

#include <string>
#include <string_view>

namespace vantor::text {

/// Appends text as UTF-8. Half a surrogate pair, which a file name may contain, is kept as three bytes.
void AppendUtf8(std::string& bytes, std::wstring_view text);

/// Text from UTF-8, including the halves that AppendUtf8 keeps. Invalid bytes become U+FFFD.
[[nodiscard]] std::wstring FromUtf8(std::string_view bytes);

/// Whether all bytes are below 128.
[[nodiscard]] bool IsAscii(std::string_view bytes);

}  // namespace vantor::text
