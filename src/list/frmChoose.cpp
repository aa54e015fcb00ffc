#include "list/frmChoose.h"

#include "form/PictureButton.h"

namespace vantor::list {

namespace {

constexpr form::Twips Margin = 120;

}  // namespace

frmChoose::frmChoose(form::UserInterface& ui, ListFiles& files, const service::Language& language,
                     message::Messages& messages)
    : Form(ui, L"frmChoose"), Page(*this, language, messages), files_(files), messages_(messages) {
  Page.FrameList.SetVisible(false);
  SetBorderStyle(form::BorderStyle::Line);
  FrameCancel.SetBorder(false);
  form::DressButton(CommandListCancel, LabelListCancel, L"Cancel");
  messages_.Connect(CommandListCancel.Click, L"CommandListCancel_Click", this, &frmChoose::CommandListCancel_Click);
  for (const LaunchGroup group : LaunchGroups) {
    Page.Of(group).Start = [this, group](std::wstring_view target) { Start(group, target); };
  }
}

void frmChoose::Form_Load() {
  messages_.Trap(L"LoadLaunchList", [this] { files_.LoadLaunchList(List); });
}

void frmChoose::ShowPage(ChoosePage& page) {
  Load();
  if (shown_ != nullptr && shown_ != &page) shown_->Frame().SetVisible(false);
  shown_ = &page;
  SetCaption(page.Title());
  page.Prepare();
  const form::Size content = page.LayOut();
  page.Frame().SetBounds({Margin, Margin, content.Width, content.Height});
  const form::Size size{content.Width + 2 * Margin, content.Height + 2 * Margin};
  page.Frame().SetVisible(true);

  const bool closes = !page.CloseCaption().empty();
  FrameCancel.SetVisible(closes);
  form::Twips height = size.Height;
  if (closes) {
    LabelListCancel.SetCaption(page.CloseCaption());
    const form::Twips width = form::ButtonWidth(LabelListCancel);
    FrameCancel.SetBounds({size.Width - Margin - width, height, width, form::ButtonHeight});
    form::PlaceButton(CommandListCancel, LabelListCancel, {0, 0, width, form::ButtonHeight});
    height += form::ButtonHeight + Margin;
  }
  SetInside({size.Width, height});
  Hooks.Place(*this);
  form::Control* const first = page.First();
  Show();
  (first != nullptr ? *first : CommandListCancel).SetFocus();
}

void frmChoose::CommandListCancel_Click() { Hooks.ClosePanel(); }

void frmChoose::Start(LaunchGroup group, std::wstring_view target) {
  CommandListCancel_Click();
  switch (group) {
    case LaunchGroup::Prog:
      return Hooks.RunProgram(target);
    case LaunchGroup::Web:
      return Hooks.OpenWebItem(target);
    default:
      return Hooks.OpenWithShell(target);
  }
}

void frmChoose::Form_KeyUp(form::Key key) {
  messages_.Trap(L"Form_KeyUp", [&] {
    if (key == form::Key::Escape) {
      CommandListCancel_Click();
    } else {
      Hooks.HotKey(key);
    }
  });
}

}  // namespace vantor::list
