#pragma once

#include <string_view>

#include "bar/PageText.h"
#include "form/Static.h"
#include "list/ChoosePage.h"
#include "state/Environment.h"

namespace vantor::bar {

/// The chart of the command language.
class CodePage : public list::ChoosePage {
 public:
  CodePage(form::Form& form, const state::Environment& environment);

  form::Frame FrameCode;
  form::Frame FrameSubstitute{FrameCode, L"FrameSubstitute"};

  form::Frame& Frame() override { return FrameCode; }
  [[nodiscard]] std::wstring_view Title() const override { return L"Code"; }
  [[nodiscard]] std::wstring_view CloseCaption() const override { return L"Hide"; }
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

}  // namespace vantor::bar
