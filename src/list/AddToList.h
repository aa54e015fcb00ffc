#pragma once

#include <string_view>

#include "form/Static.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "message/Messages.h"
#include "service/Language.h"

namespace vantor::list {

/// The controls of a box that adds items of any group.
struct AddBox {
  form::TextBox& Path;
  form::TextBox& Name;
  form::Frame& AddedInfo;  // the banner
};

enum class AddResult { Added, PathListed, NameListed, Full };

/// Adds the item in the box to the end of a group. If its target or name is already listed or the group is full, shows
/// a message instead and leaves the box unchanged, except that a listed name is cleared.
[[nodiscard]] AddResult AddUnlessListed(const AddBox& box, const LaunchList& list, LaunchGroup group,
                                        std::wstring_view banner, message::Messages& messages,
                                        const service::Language& language);

/// Appends an item to a group, empties the box and shows the banner.
void AddToList(std::wstring_view name, std::wstring_view path, const AddBox& box, const GroupBoxes& group,
               std::wstring_view banner);

}  // namespace vantor::list
