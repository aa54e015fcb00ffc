#include "bar/CompanionPage.h"

#include <algorithm>
#include <vector>

#include "bar/PageText.h"
#include "form/Form.h"
#include "form/PictureButton.h"
#include "form/UserInterface.h"
#include "product/Product.h"

namespace vantor::bar {

namespace {

using form::Twips;

constexpr Twips LeastWidth = 3000;
constexpr Twips GreatestWidth = 7200;
constexpr Twips BesideName = 480;  // the list's edges, and a scroll bar
constexpr Twips ListHeight = 1920;

}  // namespace

CompanionPage::CompanionPage(form::Form& form, const state::Environment& environment, message::Messages& messages)
    : FrameRun(form, L"FrameRun"),
      environment_(environment),
      title_(std::wstring(product::Publisher).append(L"'s Programs")) {
  FrameRun.SetCaption(title_);
  FrameRun.SetVisible(false);
  ListRunName.SetAccessibleName(title_);
  form::DressButton(CommandRunOpen, LabelRunOpen, L"Open");
  messages.Connect(ListRunName.DblClick, L"ListRunName_DblClick", this, &CompanionPage::CommandRunOpen_Click);
  messages.Connect(CommandRunOpen.Click, L"CommandRunOpen_Click", this, &CompanionPage::CommandRunOpen_Click);
}

void CompanionPage::Prepare() {
  if (ListRunName.ListIndex() != -1) return;  // they were found at the start, and the choice stays
  std::vector<std::wstring> names;
  for (const state::Companion& companion : environment_.Companions) names.push_back(companion.Name);
  ListRunName.SetEntries(std::move(names));
  if (ListRunName.ListCount() > 0) ListRunName.SetListIndex(0);
}

form::Size CompanionPage::LayOut() {
  Twips nameWidth = 0;
  for (const std::wstring& name : ListRunName.Entries()) {
    nameWidth = std::max(nameWidth, FrameRun.OwnerForm().Ui().MeasureText(name, false, GreatestWidth).Width);
  }
  const Twips width = std::clamp(nameWidth + BesideName, LeastWidth, GreatestWidth);
  ListRunName.SetBounds({PageMargin, PageTop, width, ListHeight});
  form::PlaceButton(
      CommandRunOpen, LabelRunOpen,
      {PageMargin, ListRunName.Bottom() + PageMargin, form::ButtonWidth(LabelRunOpen), form::ButtonHeight});
  return {width + 2 * PageMargin, CommandRunOpen.Bottom() + PageMargin};
}

void CompanionPage::CommandRunOpen_Click() {
  if (ListRunName.ListIndex() == -1) return;
  Start(environment_.Companions.at(static_cast<std::size_t>(ListRunName.ListIndex())).Path);
}

}  // namespace vantor::bar
