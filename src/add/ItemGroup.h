#pragma once

#include <string_view>

#include "add/BrowseState.h"
#include "list/LaunchList.h"
#include "service/Services.h"

namespace vantor::add {

/// Whether the path's extension is that of a program, in any letter case.
[[nodiscard]] bool IsProgram(const service::Services& services, std::wstring_view path);

/// The group that an item goes to. Between programs and files its extension decides, whichever of them was chosen.
[[nodiscard]] list::LaunchGroup GroupOf(const service::Services& services, AddKind chosen, std::wstring_view path);

/// What the banner says of an item added to the group of programs, files or folders.
[[nodiscard]] std::wstring_view BannerOf(list::LaunchGroup group);

}  // namespace vantor::add
