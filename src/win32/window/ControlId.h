#pragma once

#include <cstdint>
#include <string_view>

namespace vantor::win32 {

/// The id of a control's window, computed from the control's name: it stays the same from version to version, so that
/// screen-reader scripts and tests can find the control by it. Greater than the ids that Windows itself uses.
constexpr std::int32_t ControlId(std::wstring_view name) {
  std::uint32_t hash = 2166136261U;  // FNV-1a, over the characters
  for (const wchar_t character : name) hash = (hash ^ static_cast<std::uint32_t>(character)) * 16777619U;
  return static_cast<std::int32_t>((hash & 0x3FFFFFFFU) | 0x40000000U);
}

}  // namespace vantor::win32
