#pragma once

#include <cstdint>
#include <string_view>

#include "service/Services.h"

namespace vantor::add {

inline constexpr std::int16_t UnknownDrive = 0;
inline constexpr std::int16_t FixedDrive = 2;

/// The type of the path's drive in the scripting file system's numbering; UnknownDrive when it can't be examined.
[[nodiscard]] std::int16_t DriveTypeOf(const service::Services& services, std::wstring_view path);

/// Whether a path starts with the letter of a fixed drive. Finding out never contacts another computer.
[[nodiscard]] bool OnFixedDrive(const service::Services& services, std::wstring_view path);

/// What the file system knows about a drive without reading the medium.
struct DriveInfo {
  std::wstring DriveLetter;  // "" for a share
  std::int16_t DriveType = UnknownDrive;
};
[[nodiscard]] DriveInfo DriveOf(const service::Services& services, std::wstring_view path);

}  // namespace vantor::add
