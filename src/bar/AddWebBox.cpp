#include "bar/AddWebBox.h"

#include "form/Keys.h"
#include "form/PictureButton.h"
#include "list/AddToList.h"

namespace vantor::bar {

namespace {

using form::Twips;

// The labels stand above the fields, so that the box needs no more height than the bar has.
constexpr Twips LabelTop = 15;
constexpr Twips LabelHeight = 210;
constexpr Twips Gap = 60;
constexpr Twips UrlWidth = 1860;
constexpr Twips NameWidth = 1500;
constexpr Twips AddWidth = 480;

constexpr std::wstring_view AddedCaption = L"Site Added To List : Click To Hide";

}  // namespace

AddWebBox::AddWebBox(form::Form& bar, panel::PanelHost& host, const list::LaunchList& list,
                     const service::Language& language, message::Messages& messages)
    : FrameWeb(bar, L"FrameWeb"),
      FrameAddedInfo(bar, L"FrameAddedInfo"),
      PictureNo(bar, L"PictureNo"),
      host_(host),
      list_(list),
      language_(language),
      messages_(messages) {
  FrameWeb.SetCaption(L"Add URL");
  FrameWeb.SetVisible(false);
  TextWebUrl.SetAccessibleName(L"Add URL");
  LabelWebName.SetCaption(L"Launch Name");
  TextWebName.SetAccessibleName(L"Launch Name");
  form::DressButton(CommandAddWeb, L"Add");
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

void AddWebBox::LayOut(Twips left, Twips height) {
  constexpr Twips FieldTop = LabelTop + LabelHeight;
  const Twips fieldHeight = height - FieldTop - Gap;
  TextWebUrl.SetBounds({0, FieldTop, UrlWidth, fieldHeight});
  TextWebName.SetBounds({TextWebUrl.Right() + Gap, FieldTop, NameWidth, fieldHeight});
  CommandAddWeb.SetBounds({TextWebName.Right() + Gap, FieldTop, AddWidth, fieldHeight});
  LabelWebName.SetBounds({TextWebName.Left(), LabelTop, NameWidth, LabelHeight});
  FrameWeb.SetCaptionAlone(0, LabelTop);
  FrameWeb.SetBounds({left, 0, CommandAddWeb.Right() + Gap, height});
  FrameAddedInfo.SetBounds({left, 2 * LabelTop, CommandAddWeb.Right(), LabelHeight - LabelTop});
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
  switch (list::AddUnlessListed(box, list_, list::LaunchGroup::Web, AddedCaption, messages_, language_)) {
    case list::AddResult::PathListed:
    case list::AddResult::Full:
      TextWebUrl.SetFocus();
      break;
    case list::AddResult::NameListed:
      break;
    case list::AddResult::Added:
      host_.ClearLine();
      break;
  }
}

}  // namespace vantor::bar
