#pragma once

#include <string>
#include <string_view>

#include "add/BrowseState.h"
#include "state/Environment.h"

namespace vantor::add {

// Whether an item that is not on the program's own drive may be added. Each rule returns the text that says why not,
// or "", and consumes the drive type that the finder has left.

/// In fixed-disk mode: the item must be on a fixed disk.
[[nodiscard]] std::wstring_view FixedDiskRule(BrowseState& browse);

/// In removable-media mode: this computer must be the remembered one, and the item must be on a fixed disk.
[[nodiscard]] std::wstring_view RemovableMediaRule(BrowseState& browse, const state::Environment& environment);

}  // namespace vantor::add
