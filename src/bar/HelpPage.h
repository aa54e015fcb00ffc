#pragma once

#include <string_view>

#include "bar/PageText.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "list/ChoosePage.h"
#include "state/Environment.h"

namespace vantor::bar {

/// All that a new user needs, on one page.
class HelpPage : public list::ChoosePage {
 public:
  HelpPage(form::Form& form, const state::Environment& environment);

  form::Frame FrameHelp;
  form::TextBox TextHelpFolder{FrameHelp, L"TextHelpFolder"};  // where the data is

  form::Frame& Frame() override { return FrameHelp; }
  [[nodiscard]] std::wstring_view Title() const override { return L"Help"; }
  [[nodiscard]] std::wstring_view CloseCaption() const override { return L"Hide"; }
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

}  // namespace vantor::bar
