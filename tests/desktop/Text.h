#pragma once

#include <windows.h>

#include <string>

namespace vantor::desktop {

// The tests hold texts in UTF-8, so that a failed comparison can be read.

inline std::wstring Wide(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                           wide.data(), static_cast<int>(wide.size()))));
  return wide;
}

inline std::string Narrow(const std::wstring& text) {
  std::string bytes(text.size() * 3, '\0');
  bytes.resize(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                                   static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

}  // namespace vantor::desktop
