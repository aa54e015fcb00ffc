#pragma once

#include <string>
#include <string_view>

#include "form/Button.h"
#include "form/Event.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "list/ChoosePage.h"
#include "message/Messages.h"
#include "state/Environment.h"

namespace vantor::bar {

/// The maker's other programs, to be opened from a list.
class CompanionPage : public list::ChoosePage {
 public:
  CompanionPage(form::Form& form, const state::Environment& environment, message::Messages& messages);

  /// Closes the panel and starts a program; a failure is told there.
  form::Event<std::wstring_view /*target*/> Start;

  form::Frame FrameRun;
  form::ListBox ListRunName{FrameRun, L"ListRunName"};
  form::CommandButton CommandRunOpen{FrameRun, L"CommandRunOpen"};
  form::Label LabelRunOpen{FrameRun, L"LabelRunOpen"};

  form::Frame& Frame() override { return FrameRun; }
  [[nodiscard]] std::wstring_view Title() const override { return title_; }
  [[nodiscard]] std::wstring_view CloseCaption() const override { return L"Cancel"; }
  form::Size LayOut() override;
  void Prepare() override;
  form::Control* First() override { return &ListRunName; }

 private:
  void CommandRunOpen_Click();

  const state::Environment& environment_;
  std::wstring title_;
};

}  // namespace vantor::bar
