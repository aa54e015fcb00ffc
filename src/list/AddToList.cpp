#include "list/AddToList.h"

#include <cstdint>
#include <stdexcept>

#include "list/NameMatch.h"

namespace vantor::list {

AddResult AddUnlessListed(const AddBox& box, const GroupBoxes& group, std::wstring_view banner,
                          message::Messages& messages, const service::Language& language) {
  if (auto key = PathAlreadyListed(box.Path.Text(), group.Path); !key.empty()) {
    messages.ShowList(std::move(key));
    return AddResult::PathListed;
  }
  if (auto key = CheckNameListed(language, box.Name.Text(), group.Name); !key.empty()) {
    messages.ShowList(std::move(key));
    box.Name.SetText(L"");
    box.Name.SetFocus();
    return AddResult::NameListed;
  }
  AddToList(box.Name.Text(), box.Path.Text(), box, group, banner);
  return AddResult::Added;
}

void AddToList(std::wstring_view name, std::wstring_view path, const AddBox& box, const GroupBoxes& group,
               std::wstring_view banner) {
  // The files count records in 16 bits; one more could not be saved.
  if (group.Name.ListCount() >= INT16_MAX) throw std::length_error("the group is full");
  group.AddItem({name, path});
  box.Path.SetText(L"");
  box.Name.SetText(L"");
  box.AddedInfo.SetCaption(banner);
  box.AddedInfo.SetVisible(true);
}

}  // namespace vantor::list
