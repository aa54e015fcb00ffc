#pragma once

#include <string_view>

#include "message/Messages.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::list {

/// Whether this computer is the one of the identity file; false when its own identity is not to be had in time.
/// When the file or the identity can't be read, false, after the question whether to report that.
[[nodiscard]] bool MachineMatches(const service::Services& services, message::Messages& messages,
                                  std::wstring_view path);

/// Part of the start in removable-media mode: sets MachineUnknown and MachineRemembered.
void IdentifyMachine(const service::Services& services, message::Messages& messages, state::Environment& environment);

/// Makes this computer the remembered one. False, with nothing changed, when its identity is not to be had in
/// time, and after a message when it can't be read or saved.
[[nodiscard]] bool RememberMyComputer(const service::Services& services, message::Messages& messages,
                                      state::Environment& environment);

}  // namespace vantor::list
