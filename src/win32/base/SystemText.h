#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace vantor::win32 {

/// A text of any length that the system writes to a buffer. `call(buffer, size)` returns the length of the text, or at
/// least `size` if the buffer is too small, or 0 for no text, which becomes "".
template <class Call>
[[nodiscard]] std::wstring SystemText(const Call& call) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
    const bool fits = length < text.size();
    text.resize(fits ? length : std::max<std::size_t>(length, text.size() * 2));
    if (fits) return text;
  }
}

/// Whether two names are the same apart from case, as the file system compares them.
[[nodiscard]] inline bool SameName(std::wstring_view left, std::wstring_view right) {
  return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(), static_cast<int>(right.size()),
                              TRUE) == CSTR_EQUAL;
}

/// The value of an environment variable; "" if there is none.
[[nodiscard]] inline std::wstring EnvironmentVariable(const wchar_t* name) {
  return SystemText([name](wchar_t* buffer, DWORD size) { return GetEnvironmentVariableW(name, buffer, size); });
}

}  // namespace vantor::win32
