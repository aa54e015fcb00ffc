#pragma once

#include <cstdint>
#include <string_view>

namespace vantor::win32 {

/// The number of a control's window, made from the control's name: it stays the same from version to version, so that
/// scripts of screen readers, and tests, find the control by it. Above what Windows uses for windows of its own.
constexpr std::int32_t ControlId(std::wstring_view name) {
  std::uint32_t hash = 2166136261U;  // FNV-1a, over the characters
  for (const wchar_t character : name) hash = (hash ^ static_cast<std::uint32_t>(character)) * 16777619U;
  return static_cast<std::int32_t>((hash & 0x3FFFFFFFU) | 0x40000000U);
}

}  // namespace vantor::win32
