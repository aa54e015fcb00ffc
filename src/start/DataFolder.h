#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::start {

/// Fixed-disk mode: makes the data folder with its first settings file if there is none, which sets FirstStart.
/// False when nothing can be saved there; where the file is there, that is found out without writing.
[[nodiscard]] bool PrepareDataFolder(const service::Services& services, state::Environment& environment);

/// Removable-media mode: the same on the medium, and a check of what is there already. Returns the key of the
/// stop message that says why the program can't run from it, "" if it can.
[[nodiscard]] message::MessageKey PrepareMedia(const service::Services& services, state::Environment& environment);

/// The stored name of the user, "" when none is. Nothing when that can't be read now.
[[nodiscard]] std::optional<std::wstring> LoadUserName(const service::Services& services,
                                                       const state::Environment& environment);
/// Stores it; silent when it can't.
void SaveUserName(const service::Services& services, const state::Environment& environment, std::wstring_view name);

}  // namespace vantor::start
