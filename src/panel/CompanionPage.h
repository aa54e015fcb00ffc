#pragma once

#include "form/Button.h"
#include "form/ListControl.h"
#include "panel/Page.h"
#include "panel/PanelContext.h"

namespace vantor::panel {

/// A list of the maker's other programs, from which they can be opened.
class CompanionPage : public Page {
 public:
  CompanionPage(frmChoose& form, const PanelContext& context);

  form::ListBox ListRunName{Frame, L"ListRunName"};
  form::CommandButton CommandRunOpen{Frame, L"CommandRunOpen"};

  [[nodiscard]] bool Available() const override { return !context_.Environment.Companions.empty(); }
  form::Size LayOut() override;
  void Prepare() override;
  form::Control* First() override { return &ListRunName; }

 private:
  void CommandRunOpen_Click();

  PanelContext context_;
};

}  // namespace vantor::panel
