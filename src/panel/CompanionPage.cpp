#include "panel/CompanionPage.h"

#include <algorithm>
#include <vector>

#include "form/Form.h"
#include "form/Grid.h"
#include "form/UserInterface.h"
#include "product/Product.h"

namespace vantor::panel {

namespace {

using form::Twips;
using namespace form::grid;

constexpr Twips LeastWidth = 3000;
constexpr Twips GreatestWidth = 7200;
constexpr Twips BesideName = 480;  // the list's edges, and a scroll bar
constexpr Twips ListHeight = 1920;

std::wstring MakersPrograms() { return std::wstring(product::Publisher).append(L"'s Programs"); }

}  // namespace

CompanionPage::CompanionPage(frmChoose& form, const PanelContext& context)
    : Page(form, menu::Companions, {L"FrameRun", MakersPrograms(), MakersPrograms(), L"Cancel"}), context_(context) {
  ListRunName.SetAccessibleName(Title());
  CommandRunOpen.Dress(L"Open");
  message::Messages& messages = context_.Messages;
  messages.Connect(ListRunName, ListRunName.DblClick, L"DblClick", this, &CompanionPage::CommandRunOpen_Click);
  messages.Connect(CommandRunOpen, CommandRunOpen.Click, L"Click", this, &CompanionPage::CommandRunOpen_Click);
}

void CompanionPage::Prepare() {
  if (ListRunName.ListIndex() != -1) return;  // they were found at the start and don't change; the selection stays
  std::vector<std::wstring> names;
  for (const state::Companion& companion : context_.Environment.Companions) names.push_back(companion.Name);
  ListRunName.SetEntries(std::move(names));
  if (ListRunName.ListCount() > 0) ListRunName.SetListIndex(0);
}

form::Size CompanionPage::LayOut() {
  Twips nameWidth = 0;
  for (const std::wstring& name : ListRunName.Entries()) {
    nameWidth = std::max(nameWidth, Frame.OwnerForm().Ui().MeasureText(name, false, GreatestWidth).Width);
  }
  const Twips width = std::clamp(nameWidth + BesideName, LeastWidth, GreatestWidth);
  ListRunName.SetBounds({Margin, FrameTop, width, ListHeight});
  CommandRunOpen.SetBounds({Margin, ListRunName.Bottom() + Margin, CommandRunOpen.FullWidth(), ButtonHeight});
  return {width + 2 * Margin, CommandRunOpen.Bottom() + Margin};
}

void CompanionPage::CommandRunOpen_Click() {
  if (ListRunName.ListIndex() == -1) return;
  const auto chosen = static_cast<std::size_t>(ListRunName.ListIndex());
  Host().ClosePanel();
  context_.Messages.ShowListMessage(context_.Starters.RunProgramFile(context_.Environment.Companions.at(chosen).Path));
}

}  // namespace vantor::panel
