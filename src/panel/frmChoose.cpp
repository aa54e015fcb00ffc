#include "panel/frmChoose.h"

#include "form/Grid.h"

namespace vantor::panel {

using namespace form::grid;

frmChoose::frmChoose(form::UserInterface& ui, PanelHost& host, message::Messages& messages)
    : Form(ui, L"frmChoose"), host_(host), messages_(messages) {
  SetBorderStyle(form::BorderStyle::Line);
  FrameCancel.SetBorder(false);
  CommandListCancel.Dress(L"Cancel");
  messages_.Connect(CommandListCancel, CommandListCancel.Click, L"Click", this, &frmChoose::CommandListCancel_Click);
}

void frmChoose::Form_Load() {
  for (Page* page : pages_) page->Load();
}

void frmChoose::ShowPage(Page& page) {
  Load();
  for (Page* other : pages_) {
    if (other != &page) other->Frame.SetVisible(false);
  }
  SetCaption(page.Title());
  page.Prepare();
  Arrange(page);
  page.Frame.SetVisible(true);
  form::Control* const first = page.First();
  Show();
  (first != nullptr ? *first : CommandListCancel).SetFocus();
}

void frmChoose::Arrange(Page& page) {
  const form::Size content = page.LayOut();
  page.Frame.SetBounds({Margin, Margin, content.Width, content.Height});
  const form::Size size{content.Width + 2 * Margin, content.Height + 2 * Margin};

  const bool closes = !page.CloseCaption().empty();
  FrameCancel.SetVisible(closes);
  form::Twips height = size.Height;
  if (closes) {
    CommandListCancel.SetCaption(page.CloseCaption());
    const form::Twips width = CommandListCancel.FullWidth();
    FrameCancel.SetBounds({size.Width - Margin - width, height, width, ButtonHeight});
    CommandListCancel.SetBounds({0, 0, width, ButtonHeight});
    height += ButtonHeight + Margin;
  }
  SetInside({size.Width, height});
  host_.PlaceByBar(*this);
}

void frmChoose::Form_KeyUp(form::Key key) {
  messages_.Trap(L"Form_KeyUp", [&] {
    if (key == form::Key::Escape) {
      CommandListCancel_Click();
    } else {
      host_.HotKey(key);
    }
  });
}

// --- a page of the form

Page::Page(frmChoose& form, std::size_t index, const PageTexts& texts)
    : Panel(form.Host(), index, form),
      Frame(form, texts.FrameName),
      form_(form),
      title_(texts.Title),
      closeCaption_(texts.CloseCaption) {
  Frame.SetCaption(texts.Caption);
  Frame.SetBorder(!texts.Caption.empty());
  Frame.SetVisible(false);
  form.Add(*this);
}

void Page::Open() { form_.ShowPage(*this); }

void Page::Arrange() {
  if (Frame.Visible()) form_.Arrange(*this);
}

}  // namespace vantor::panel
