#pragma once

#include <string_view>

#include "add/BrowseState.h"
#include "list/LaunchList.h"
#include "service/Services.h"

namespace vantor::add {

/// Whether the path has the extension of a program, regardless of case.
[[nodiscard]] bool IsProgram(const service::Services& services, std::wstring_view path);

/// The group that an item is added to. Whether it is a program or a file depends on its extension alone.
[[nodiscard]] list::LaunchGroup GroupOf(const service::Services& services, AddKind chosen, std::wstring_view path);

/// The text of the banner for an item added to the group of programs, files or folders.
[[nodiscard]] std::wstring_view BannerOf(list::LaunchGroup group);

}  // namespace vantor::add
