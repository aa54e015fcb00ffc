#include "list/ListPage.h"

#include <algorithm>

#include "form/Form.h"

namespace vantor::list {

namespace {

using form::Twips;

constexpr Twips Gap = 120;
constexpr Twips GroupWidth = 5580;  // two beside each other fit a screen of 800 pixels

}  // namespace

ListPage::ListPage(form::Form& form, const service::Language& language, message::Messages& messages)
    : FrameList(form, L"FrameList"),
      Prog(FrameList, {L"Prog", L"Program List :", L"Program", L"New Name :"}, language, messages),
      File(FrameList, {L"File", L"File List :", L"File", L"New Name:"}, language, messages),
      Fold(FrameList, {L"Fold", L"Folder List :", L"Folder", L"New Name :"}, language, messages),
      Web(FrameList, {L"Web", L"Web URL List :", L"Web URL", L"New Name :"}, language, messages) {
  FrameList.SetBorder(false);
}

GroupFrame& ListPage::Of(LaunchGroup group) {
  switch (group) {
    case LaunchGroup::File:
      return File;
    case LaunchGroup::Fold:
      return Fold;
    case LaunchGroup::Prog:
      return Prog;
    case LaunchGroup::Web:
      break;
  }
  return Web;
}

bool ListPage::Empty() const {
  return Prog.Name.ListCount() + File.Name.ListCount() + Fold.Name.ListCount() + Web.Name.ListCount() == 0;
}

form::Size ListPage::LayOut() {
  constexpr Twips Second = GroupWidth + Gap;
  const Twips lowerTop = std::max(Prog.LayOut(0, 0, GroupWidth), File.LayOut(Second, 0, GroupWidth)) + Gap;
  const Twips lower = std::max(Fold.LayOut(0, lowerTop, GroupWidth), Web.LayOut(Second, lowerTop, GroupWidth));
  return {Second + GroupWidth, lowerTop + lower};
}

void ListPage::Prepare() {
  for (const LaunchGroup group : LaunchGroups) Of(group).Prepare();
}

form::Control* ListPage::First() {
  for (GroupFrame* group : {&Prog, &File, &Fold, &Web}) {
    if (group->Name.ListCount() > 0) return &group->Name;
  }
  return nullptr;
}

}  // namespace vantor::list
