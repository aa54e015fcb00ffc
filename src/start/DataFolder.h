#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"
#include "state/Environment.h"

namespace vantor::start {

struct DataFolderState {
  message::MessageKey Refusal;  // of the stop message that says why the program can't run; "" if it can
  bool CanSave = true;          // for an existing file, this is determined without writing
};

/// Fixed-disk mode: creates the data folder with its first settings file if there is none, and then sets FirstStart.
/// Refuses nothing.
[[nodiscard]] DataFolderState PrepareDataFolder(const service::Services& services, state::Environment& environment);

/// Removable-media mode: the same on the medium, plus a check of existing data.
[[nodiscard]] DataFolderState PrepareMedia(const service::Services& services, state::Environment& environment);

/// The stored name of the user, "" if there is none. Nothing if it can't be read now.
[[nodiscard]] std::optional<std::wstring> LoadUserName(const service::Services& services,
                                                       const state::Environment& environment);
/// Stores the name. Fails silently.
void SaveUserName(const service::Services& services, const state::Environment& environment, std::wstring_view name);

}  // namespace vantor::start
