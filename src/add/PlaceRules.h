#pragma once

#include <string>
#include <string_view>

#include "add/BrowseState.h"
#include "state/Environment.h"

namespace vantor::add {

// Whether what the add box shows, which does not lie on the program's own drive, may be added. Each rule returns
// the text that says why not, or "", and uses up the drive type that the finder left.

/// In fixed-disk mode: it must lie on a fixed disk.
[[nodiscard]] std::wstring_view FixedDiskRule(BrowseState& browse);

/// In removable-media mode: a computer must be remembered, be this one, and it must lie on a fixed disk.
[[nodiscard]] std::wstring_view RemovableMediaRule(BrowseState& browse, const state::Environment& environment);

}  // namespace vantor::add
