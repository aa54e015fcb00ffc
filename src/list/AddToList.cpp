#include "list/AddToList.h"

#include <cstdint>

#include "list/NameMatch.h"

namespace vantor::list {

// The files count records in 16 bits, so no more could be saved.
constexpr int MostItems = INT16_MAX;

AddResult AddUnlessListed(const AddBox& box, const LaunchList& list, LaunchGroup group, std::wstring_view banner,
                          message::Messages& messages, const service::Language& language) {
  const GroupBoxes& boxes = list.Of(group);
  if (const auto key = PathAlreadyListed(group, box.Path.Text(), boxes.Path); !key.empty()) {
    messages.ShowListMessage(key);
    return AddResult::PathListed;
  }
  if (const auto key = CheckNameListed(language, box.Name.Text(), boxes.Name); !key.empty()) {
    messages.ShowListMessage(key);
    box.Name.SetText(L"");
    box.Name.SetFocus();
    return AddResult::NameListed;
  }
  if (boxes.Name.ListCount() >= MostItems) {
    messages.ShowTextMessage(L"This list is full.");
    return AddResult::Full;
  }
  AddToList(box.Name.Text(), box.Path.Text(), box, boxes, banner);
  return AddResult::Added;
}

void AddToList(std::wstring_view name, std::wstring_view path, const AddBox& box, const GroupBoxes& group,
               std::wstring_view banner) {
  group.AddItem({name, path});
  box.Path.SetText(L"");
  box.Name.SetText(L"");
  box.AddedInfo.SetCaption(banner);
  box.AddedInfo.SetVisible(true);
}

}  // namespace vantor::list
