#pragma once

#include <string_view>

#include "form/Static.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "message/Messages.h"
#include "service/Language.h"

namespace vantor::list {

/// The controls of a box by which items are added, whatever their group.
struct AddBox {
  form::TextBox& Path;
  form::TextBox& Name;
  form::Frame& AddedInfo;  // the banner
};

enum class AddResult { Added, PathListed, NameListed, Full };

/// Adds what the box holds to the end of a group, unless the target or the name is in it already, or the group is full.
/// Then it says so and leaves the box as it is, but for a listed name, which is cleared for another one.
[[nodiscard]] AddResult AddUnlessListed(const AddBox& box, const LaunchList& list, LaunchGroup group,
                                        std::wstring_view banner, message::Messages& messages,
                                        const service::Language& language);

/// Appends an item to a group, empties the box and shows the banner.
void AddToList(std::wstring_view name, std::wstring_view path, const AddBox& box, const GroupBoxes& group,
               std::wstring_view banner);

}  // namespace vantor::list
