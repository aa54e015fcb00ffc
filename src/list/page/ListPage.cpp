#include "list/page/ListPage.h"

#include <algorithm>

#include "form/Grid.h"
#include "panel/frmChoose.h"

namespace vantor::list {

using form::Twips;

constexpr Twips GroupWidth = 5580;  // two side by side fit a screen 800 pixels wide

ListPage::ListPage(panel::frmChoose& form, const panel::PanelContext& context, ListFiles& files)
    : Page(form, panel::menu::List, {L"FrameList", {}, L"List", L"Cancel"}),
      Prog(*this, LaunchGroup::Prog, {L"Prog", L"Program List :", L"Program", L"New Name :"}, context),
      File(*this, LaunchGroup::File, {L"File", L"File List :", L"File", L"New Name:"}, context),
      Fold(*this, LaunchGroup::Fold, {L"Fold", L"Folder List :", L"Folder", L"New Name :"}, context),
      Web(*this, LaunchGroup::Web, {L"Web", L"Web URL List :", L"Web URL", L"New Name :"}, context),
      context_(context),
      files_(files) {}

message::MessageKey ListPage::Refusal() {
  const int items = Prog.Name.ListCount() + File.Name.ListCount() + Fold.Name.ListCount() + Web.Name.ListCount();
  return items == 0 ? message::MessageEmptyList : message::MessageKey();
}

void ListPage::Load() {
  context_.Messages.Trap(L"LoadLaunchList", [this] { files_.LoadLaunchList(List); });
}

form::Size ListPage::LayOut() {
  const Twips width = std::max(GroupWidth, Prog.LeastWidth());  // all have the same labels and buttons
  const Twips second = width + form::grid::Margin;
  const auto layOutBoth = [width, second](GroupFrame& left, GroupFrame& right, Twips top) {
    const Twips height = std::max(left.LayOut(0, top, width), right.LayOut(second, top, width));
    for (GroupFrame* group : {&left, &right}) {
      group->Frame.SetBounds({group->Frame.Left(), top, width, height});  // two side by side have the same height
    }
    return top + height;
  };
  return {second + width, layOutBoth(Fold, Web, layOutBoth(Prog, File, 0) + form::grid::Margin)};
}

void ListPage::Prepare() {
  for (GroupFrame* group : {&File, &Fold, &Prog, &Web}) group->Prepare();
}

form::Control* ListPage::First() {
  for (GroupFrame* group : {&Prog, &File, &Fold, &Web}) {
    if (group->Name.ListCount() > 0) return &group->Name;
  }
  return nullptr;
}

}  // namespace vantor::list
