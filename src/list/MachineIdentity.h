#pragma once

#include <string_view>

#include "message/Messages.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::list {

/// Whether this computer is the one in the identity file. False if its own identity can't be determined in time. If the
/// file or the identity can't be read, asks whether to report that and returns false.
[[nodiscard]] bool MachineMatches(const service::Services& services, message::Messages& messages,
                                  std::wstring_view path);

/// Part of the start in removable-media mode: sets MachineUnknown and MachineRemembered.
void IdentifyMachine(const service::Services& services, message::Messages& messages, state::Environment& environment);

/// Makes this computer the remembered one. Returns false and changes nothing if its identity can't be determined in
/// time, or, after a message, if it can't be read or saved.
[[nodiscard]] bool RememberMyComputer(const service::Services& services, message::Messages& messages,
                                      state::Environment& environment);

}  // namespace vantor::list
