#include "bar/AddWebBox.h"

#include <algorithm>

#include "form/Grid.h"
#include "form/Keys.h"
#include "list/AddToList.h"

namespace vantor::bar {

using form::Twips;
using namespace form::grid;

// The usual widths. The labels are above the fields, so that the unfolded bar fits a screen of 800 pixels.
constexpr Twips LabelTop = 30;
constexpr Twips UrlWidth = 1860;
constexpr Twips NameWidth = 1440;
constexpr Twips AddWidth = 540;

constexpr std::wstring_view AddedCaption = L"Site Added To List : Click To Hide";

AddWebBox::AddWebBox(form::Form& bar, panel::PanelHost& host, const list::LaunchList& list,
                     const service::Language& language, message::Messages& messages)
    : FrameWeb(bar, L"FrameWeb"),
      FrameAddedInfo(bar, L"FrameAddedInfo"),
      host_(host),
      list_(list),
      language_(language),
      messages_(messages) {
  FrameWeb.SetCaption(L"Add URL");
  FrameWeb.SetVisible(false);
  TextWebUrl.SetAccessibleName(L"Add URL");
  LabelWebName.SetCaption(L"Launch Name");
  TextWebName.SetAccessibleName(L"Launch Name");
  CommandAddWeb.Dress(L"Add");
  FrameAddedInfo.SetCaption(AddedCaption);
  FrameAddedInfo.SetBanner(true);
  FrameAddedInfo.SetBackColor(form::Color::LineBlue);
  FrameAddedInfo.SetVisible(false);
  PictureNo.SetTabStop(false);
  EnableByText();

  messages_.Connect(TextWebUrl, TextWebUrl.Change, L"Change", this, &AddWebBox::TextWebUrl_Change);
  messages_.Connect(TextWebName, TextWebName.Change, L"Change", this, &AddWebBox::TextWebName_Change);
  messages_.Connect(TextWebName, TextWebName.KeyPress, L"KeyPress", this, &AddWebBox::TextWebName_KeyPress);
  messages_.Connect(CommandAddWeb, CommandAddWeb.Click, L"Click", this, &AddWebBox::CommandAddWeb_Click);
  messages_.Connect(FrameAddedInfo, FrameAddedInfo.Click, L"Click", this, &AddWebBox::FrameAddedInfo_Click);
}

Twips AddWebBox::LeastHeight() const {
  return LabelTop + LabelWebName.LeastSize().Height + CommandAddWeb.HeightFor(TextWebUrl.LeastSize().Height) + Gap;
}

void AddWebBox::LayOut(Twips left, Twips height) {
  const form::Size label = LabelWebName.LeastSize();
  const Twips fieldTop = LabelTop + label.Height;
  const Twips fieldHeight = height - fieldTop - Gap;
  const Twips nameWidth = std::max(NameWidth, label.Width);
  const Twips addWidth = std::max(AddWidth, CommandAddWeb.LeastSize().Width);
  // The banner covers both labels.
  const Twips urlWidth = std::max(UrlWidth, FrameAddedInfo.LeastSize().Width - nameWidth - addWidth - 2 * Gap);
  TextWebUrl.SetBounds({0, fieldTop, urlWidth, fieldHeight});
  TextWebName.SetBounds({TextWebUrl.Right() + Gap, fieldTop, nameWidth, fieldHeight});
  CommandAddWeb.SetBounds({TextWebName.Right() + Gap, fieldTop, addWidth, fieldHeight});
  LabelWebName.SetBounds({TextWebName.Left(), LabelTop, nameWidth, label.Height});
  FrameWeb.SetCaptionAlone(0, LabelTop);
  FrameWeb.SetBounds({left, 0, CommandAddWeb.Right() + Gap, height});
  FrameAddedInfo.SetBounds({left, LabelTop, CommandAddWeb.Right(), label.Height});
}

void AddWebBox::SetShown(bool shown) {
  FrameAddedInfo.SetVisible(false);
  FrameWeb.SetVisible(shown);
  if (!shown) return;
  TextWebUrl.SetText({});
  TextWebName.SetText({});
  EnableByText();
}

void AddWebBox::EnableByText() {
  const bool hasUrl = !TextWebUrl.Text().empty();
  TextWebName.SetEnabled(hasUrl);
  TextWebName.SetBackColor(hasUrl ? form::Color::WindowBackground : form::Color::Silver);
  CommandAddWeb.SetEnabled(BothFilled());
}

void AddWebBox::TextWebUrl_Change() {
  FrameAddedInfo.SetVisible(false);
  EnableByText();
}

void AddWebBox::TextWebName_Change() { CommandAddWeb.SetEnabled(BothFilled()); }

void AddWebBox::TextWebName_KeyPress(wchar_t& character) {
  if (character == form::CharEnter && BothFilled()) CommandAddWeb.DoClick();
}

void AddWebBox::CommandAddWeb_Click() {
  PictureNo.SetFocus();
  const list::AddBox box{TextWebUrl, TextWebName, FrameAddedInfo};
  using list::AddResult;
  const AddResult result =
      list::AddUnlessListed(box, list_, list::LaunchGroup::Web, AddedCaption, messages_, language_);
  if (result == AddResult::PathListed || result == AddResult::Full) TextWebUrl.SetFocus();
  if (result == AddResult::Added) host_.ItemAdded();
}

}  // namespace vantor::bar
