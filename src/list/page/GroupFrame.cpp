#include "list/page/GroupFrame.h"

#include <algorithm>
#include <string>

#include "form/Grid.h"
#include "form/Keys.h"
#include "list/NameMatch.h"

namespace vantor::list {

namespace {

using form::Twips;

using namespace form::grid;

std::wstring ControlName(std::wstring_view kind, std::wstring_view code, std::wstring_view what) {
  return std::wstring(kind).append(L"List").append(code).append(what);
}

}  // namespace

GroupFrame::GroupFrame(panel::Page& page, LaunchGroup group, const GroupTexts& texts,
                       const panel::PanelContext& context)
    : Frame(page.Frame, std::wstring(L"Frame").append(texts.Code).append(L"List")),
      LabelName(Frame, ControlName(L"Label", texts.Code, L"Name")),
      Name(Frame, ControlName(L"Combo", texts.Code, L"Name")),
      LabelPath(Frame, ControlName(L"Label", texts.Code, L"Path")),
      Path(Frame, ControlName(L"Combo", texts.Code, L"Path")),
      Open(Frame, ControlName(L"Command", texts.Code, L"Open")),
      Rename(Frame, ControlName(L"Command", texts.Code, L"Rename")),
      Remove(Frame, ControlName(L"Command", texts.Code, L"Remove")),
      FrameRename(Frame, ControlName(L"Frame", texts.Code, L"Rename")),
      LabelNewName(FrameRename, ControlName(L"Label", texts.Code, L"NewName")),
      TextRename(FrameRename, ControlName(L"Text", texts.Code, L"Rename")),
      RenOK(FrameRename, ControlName(L"Command", texts.Code, L"RenOK")),
      RenCancel(FrameRename, ControlName(L"Command", texts.Code, L"RenCancel")),
      page_(page),
      context_(context),
      group_(group) {
  Dress(texts);
  ConnectEvents();
}

void GroupFrame::Dress(const GroupTexts& texts) {
  const std::wstring item(texts.Item);
  Frame.SetCaption(texts.Caption);
  LabelName.SetCaption(L"Name :");
  LabelPath.SetCaption(L"Launch Path :");
  Name.SetAccessibleName(item + L" Name");
  Path.SetAccessibleName(item + L" Launch Path");
  Open.Dress(L"Open");
  Rename.Dress(L"Rename");
  Remove.Dress(L"Remove From List");
  FrameRename.SetBorder(false);
  FrameRename.SetVisible(false);
  LabelNewName.SetCaption(texts.NewNameLabel);
  TextRename.SetAccessibleName(item + L" New Name");
  RenOK.Dress(L"OK");
  RenCancel.Dress(L"Cancel");
  RenOK.SetEnabled(false);
}

void GroupFrame::ConnectEvents() {
  message::Messages& messages = context_.Messages;
  messages.Connect(Name, Name.Click, L"Click", this, &GroupFrame::Name_Click);
  messages.Connect(Path, Path.Click, L"Click", this, &GroupFrame::Path_Click);
  messages.Connect(Open, Open.Click, L"Click", this, &GroupFrame::Open_Click);
  messages.Connect(Rename, Rename.Click, L"Click", this, &GroupFrame::Rename_Click);
  messages.Connect(Remove, Remove.Click, L"Click", this, &GroupFrame::Remove_Click);
  messages.Connect(TextRename, TextRename.Change, L"Change", this, &GroupFrame::TextRename_Change);
  messages.Connect(TextRename, TextRename.KeyPress, L"KeyPress", this, &GroupFrame::TextRename_KeyPress);
  messages.Connect(RenOK, RenOK.Click, L"Click", this, &GroupFrame::RenOK_Click);
  messages.Connect(RenCancel, RenCancel.Click, L"Click", this, &GroupFrame::RenCancel_Click);
}

Twips GroupFrame::LabelWidth() const {
  return std::max({LabelName.LeastSize().Width, LabelPath.LeastSize().Width, LabelNewName.LeastSize().Width});
}

Twips GroupFrame::LeastWidth() const {
  return Margin + LabelWidth() + Margin + Open.FullWidth() + Gap + Rename.FullWidth() + Gap + Remove.FullWidth() +
         Margin;
}

Twips GroupFrame::LayOut(Twips left, Twips top, Twips width) {
  const Twips labelWidth = LabelWidth();
  const Twips labelHeight = LabelName.LeastSize().Height;
  const Twips lineHeight = Name.HeightFor(LineHeight);
  const Twips labelTop = (lineHeight - labelHeight) / 2;
  const Twips boxLeft = Margin + labelWidth + Margin;
  const Twips boxWidth = width - boxLeft - Margin;
  Twips y = Frame.HeightFor(FrameTop);
  LabelName.SetBounds({Margin, y + labelTop, labelWidth, labelHeight});
  Name.SetBounds({boxLeft, y, boxWidth, lineHeight});
  y = Name.Bottom() + Gap;
  LabelPath.SetBounds({Margin, y + labelTop, labelWidth, labelHeight});
  Path.SetBounds({boxLeft, y, boxWidth, lineHeight});
  y = Path.Bottom() + Margin;

  // The three buttons together are as wide as the boxes; the difference to their usual widths is divided equally.
  Twips x = boxLeft;
  const auto place = [&x](form::CommandButton& button, Twips at, Twips more) {
    button.SetBounds({x, at, button.FullWidth() + more, ButtonHeight});
    x += button.Width() + Gap;
  };
  const Twips wanted = Open.FullWidth() + Rename.FullWidth() + Remove.FullWidth() + 2 * Gap;
  const Twips more = (boxWidth - wanted) / 3;
  place(Open, y, more);
  place(Rename, y, more);
  place(Remove, y, boxWidth - wanted - 2 * more);
  y += ButtonHeight;
  if (!FrameRename.Visible()) {
    Frame.SetBounds({left, top, width, y + Margin});
    return Frame.Height();
  }
  y += Gap;

  FrameRename.SetBounds({Gap, y, width - 2 * Gap, ButtonHeight});
  const Twips inside = Margin - Gap;
  LabelNewName.SetBounds({inside, (ButtonHeight - labelHeight) / 2, labelWidth, labelHeight});
  const Twips buttons = RenOK.FullWidth() + Gap + RenCancel.FullWidth();
  const Twips textLeft = boxLeft - Gap;
  x = FrameRename.Width() - inside - buttons;
  TextRename.SetBounds({textLeft, (ButtonHeight - lineHeight) / 2, x - Gap - textLeft, lineHeight});
  place(RenOK, 0, 0);
  place(RenCancel, 0, 0);

  Frame.SetBounds({left, top, width, FrameRename.Bottom() + Margin});
  return Frame.Height();
}

void GroupFrame::Prepare() {
  if (Path.ListIndex() == -1 && Path.ListCount() > 0) Path.SetListIndex(0);
  EnableByCount();
}

void GroupFrame::EnableByCount() {
  const bool any = Path.ListCount() != 0;
  for (form::CommandButton* button : {&Open, &Rename, &Remove}) button->SetEnabled(any);
}

void GroupFrame::Open_Click() {
  if (Path.ListIndex() == -1) return;
  const std::wstring target = Path.Text();
  context_.Host.ClosePanel();
  const command::Starters& starters = context_.Starters;
  context_.Messages.ShowListMessage(group_ == LaunchGroup::Prog ? starters.RunProgramFile(target)
                                                                : starters.OpenItem(target));
}

void GroupFrame::Rename_Click() {
  const bool visible = !FrameRename.Visible();
  ShowRename(visible);
  TextRename.SetText({});
  if (visible) TextRename.SetFocus();
}

void GroupFrame::ShowRename(bool visible) {
  Rename.SetState(visible ? form::ButtonState::Pressed : form::ButtonState::Plain);
  FrameRename.SetVisible(visible);
  page_.Arrange();
}

void GroupFrame::TextRename_Change() {
  const std::wstring& name = TextRename.Text();
  RenOK.SetEnabled(!name.empty() && Name.ListIndex() != -1 && name != Name.Text());
}

void GroupFrame::TextRename_KeyPress(wchar_t& character) {
  if (character == form::CharEnter && !TextRename.Text().empty()) RenOK_Click();
}

void GroupFrame::RenOK_Click() {
  if (Name.ListIndex() == -1) return;
  const std::wstring newName = TextRename.Text();
  const message::MessageKey listed = CheckNameListed(context_.Services.Language, newName, Name);
  if (!listed.empty()) {
    context_.Messages.ShowListMessage(listed);
    TextRename.SetText({});
    TextRename.SetFocus();
    return;
  }
  Name.SetList(Name.ListIndex(), newName);
  RenCancel_Click();
  context_.Host.ListChanged();
}

void GroupFrame::RenCancel_Click() {
  ShowRename(false);
  Rename.SetFocus();
}

void GroupFrame::Remove_Click() {
  const int index = Path.ListIndex();
  if (index == -1) return;
  Name.RemoveItem(index);
  Path.RemoveItem(index);
  if (Path.ListCount() > 0) Path.SetListIndex(0);
  EnableByCount();
  Name.SetFocus();  // not the button, or another key press would remove the next item
  context_.Host.ListChanged();
}

}  // namespace vantor::list
