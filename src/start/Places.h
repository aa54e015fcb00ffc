#pragma once

#include <string>
#include <string_view>

#include "service/FileSystem.h"
#include "service/Language.h"
#include "service/System.h"
#include "state/Environment.h"

namespace vantor::start {

/// The class of a drive, given by its root: "Unknown", "Removable", "Fixed", "Remote", "CDRom" or "RAMDisk"; ""
/// for any other type and for a drive that can't be examined. A path without a drive letter is "Remote" without asking.
[[nodiscard]] std::wstring GetDriveTypeText(service::FileSystem& files, std::wstring_view drive);

/// Finds the Windows folder, its upper-case form and its drive letter. All stay "" if the system does not report the
/// folder or its path has more than 254 characters.
void GetWindowsFolder(service::System& system, const service::Language& language, state::Environment& environment);

/// The drive of a folder: everything up to and including its first backslash, or the share of a network path.
[[nodiscard]] std::wstring DriveRootOf(std::wstring_view folder);

/// Sets the data folder below the program's folder, and the paths of the data files that exist in the run mode.
void SetDataFiles(state::Environment& environment);

}  // namespace vantor::start
