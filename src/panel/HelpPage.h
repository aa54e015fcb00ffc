#pragma once

#include "form/TextBox.h"
#include "panel/Page.h"
#include "panel/PageText.h"
#include "panel/PanelContext.h"
#include "state/Environment.h"

namespace vantor::panel {

/// Everything a new user needs to know, on one page.
class HelpPage : public Page {
 public:
  HelpPage(frmChoose& form, const PanelContext& context);

  form::TextBox TextHelpFolder{Frame, L"TextHelpFolder"};  // the data folder

  form::Size LayOut() override;
  void Prepare() override;

 private:
  const state::Environment& environment_;
  PageText text_;
  TextTable typing_;
  form::Label& completion_;
  TextTable buttons_;
  TextSection adding_;
  TextSection data_;
  TextSection stick_;
};

}  // namespace vantor::panel
