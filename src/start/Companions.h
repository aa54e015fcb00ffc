#pragma once

#include <vector>

#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::start {

/// The maker's other programs, in the order in which they are listed and completed. Each is in a sub-folder of its
/// own name of a maker's folder: the one in the root of the program's drive, and the one that holds the program's
/// folder. Last is the help program beside this one. On a fixed disk each is taken only when no other ordinary user may
/// write to it, to its folder or to the maker's. Where there is none this costs two looks at the disk.
[[nodiscard]] std::vector<state::Companion> FindCompanions(const service::Services& services,
                                                           const state::Environment& environment);

}  // namespace vantor::start
