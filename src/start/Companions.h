#pragma once

#include <vector>

#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::start {

/// The maker's other programs, in the order in which they are listed and completed. Each is in a folder of the
/// same name within a maker's folder: the one in the root of the program's drive, or the one that holds the program's
/// folder. The help program next to this one comes last. On a fixed disk a program is listed only if no other ordinary
/// user may write to it, to its folder or to the maker's. If there are none, this costs two disk accesses.
[[nodiscard]] std::vector<state::Companion> FindCompanions(const service::Services& services,
                                                           const state::Environment& environment);

}  // namespace vantor::start
