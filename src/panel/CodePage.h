#pragma once

#include "panel/Page.h"
#include "panel/PageText.h"
#include "panel/PanelContext.h"
#include "state/Environment.h"

namespace vantor::panel {

/// The chart of the command language.
class CodePage : public Page {
 public:
  CodePage(frmChoose& form, const PanelContext& context);

  form::Frame FrameSubstitute{Frame, L"FrameSubstitute"};

  form::Size LayOut() override;
  void Prepare() override;

 private:
  const state::Environment& environment_;
  PageText text_;
  TextTable first_;
  TextTable second_;
  form::Label& substituteWhen_;
  TextTable substitute_;
  form::Label& predefined_;
  TextSection folders_;
  TextSection controlPanel_;
  TextSection mails_;
};

}  // namespace vantor::panel
