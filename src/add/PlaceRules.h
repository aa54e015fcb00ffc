#pragma once

#include <cstdint>
#include <string_view>

#include "add/BrowseState.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::add {

inline constexpr std::int16_t FixedDrive = 2;

/// The type of the path's drive in the scripting file system's numbering; 0 if it can't be examined.
[[nodiscard]] std::int16_t DriveTypeOf(const service::Services& services, std::wstring_view path);

/// Whether a path starts with the letter of a fixed drive. Finding out never contacts another computer.
[[nodiscard]] bool OnFixedDrive(const service::Services& services, std::wstring_view path);

// Whether an item that is not on the program's own drive may be added. Each rule returns the text that says why not,
// or "", and consumes the drive type that the finder has left.

/// In fixed-disk mode: the item must be on a fixed disk.
[[nodiscard]] std::wstring_view FixedDiskRule(BrowseState& browse);

/// In removable-media mode: this computer must be the remembered one, and the item must be on a fixed disk.
[[nodiscard]] std::wstring_view RemovableMediaRule(BrowseState& browse, const state::Environment& environment);

}  // namespace vantor::add
