#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "form/Button.h"
#include "form/Event.h"
#include "form/Static.h"
#include "list/ChoosePage.h"
#include "list/Settings.h"
#include "message/Messages.h"
#include "options/OptionFlags.h"
#include "service/ScriptShell.h"
#include "state/Environment.h"

namespace vantor::options {

/// What the page works with. All of it outlives the page.
struct OptionsParts {
  service::ScriptShell& ScriptShell;
  const state::Environment& Environment;
  message::Messages& Messages;
  list::Settings& Settings;
  OptionFlags& Options;
};

/// What others do for the page. An empty one does nothing.
struct OptionsHooks {
  /// Closes the open panel; the bar keeps itself on top afterwards if the option says so.
  form::Event<> ClosePanel;
  /// Makes this computer the remembered one; false when it could not.
  std::function<bool()> RememberMyComputer;
};

/// The preferences page of the list dialog.
class OptionsPage : public list::ChoosePage {
 public:
  static constexpr std::size_t Count = 3;

  OptionsPage(form::Form& form, const OptionsParts& parts);

  OptionsHooks Hooks;

  form::Frame FrameOptions;
  std::array<form::CheckBox, Count> CheckOptionMain{form::CheckBox{FrameOptions, L"CheckOptionMain(0)"},
                                                    form::CheckBox{FrameOptions, L"CheckOptionMain(1)"},
                                                    form::CheckBox{FrameOptions, L"CheckOptionMain(2)"}};
  form::CommandButton CommandOptionShortcut{FrameOptions, L"CommandOptionShortcut"};
  form::Label LabelOptionShortcut{FrameOptions, L"LabelOptionShortcut"};
  form::CommandButton CommandOptionRemember{FrameOptions, L"CommandOptionRemember"};
  form::Label LabelOptionRemember{FrameOptions, L"LabelOptionRemember"};
  form::CommandButton CommandOptionOK{FrameOptions, L"CommandOptionOK"};
  form::Label LabelOptionOK{FrameOptions, L"LabelOptionOK"};
  form::CommandButton CommandOptionCancel{FrameOptions, L"CommandOptionCancel"};
  form::Label LabelOptionCancel{FrameOptions, L"LabelOptionCancel"};

  /// Lets the user remember this computer: adding was refused because none is remembered yet.
  void EnableRemember() { CommandOptionRemember.SetEnabled(true); }

  form::Frame& Frame() override { return FrameOptions; }
  [[nodiscard]] std::wstring_view Title() const override { return L"Options"; }
  [[nodiscard]] std::wstring_view CloseCaption() const override { return {}; }
  form::Size LayOut() override;
  void Prepare() override;
  form::Control* First() override { return &CheckOptionMain.front(); }

 private:
  void Dress();
  void ConnectEvents();

  void CheckOptionMain_Click(std::size_t index);
  void CommandOptionOK_Click();
  void CommandOptionCancel_Click();
  void CommandOptionShortcut_Click();
  void CommandOptionRemember_Click();

  void SetStartWithWindows(bool start);
  [[nodiscard]] std::wstring ProgramFile() const;

  OptionsParts parts_;
  std::array<std::int16_t, Count> optionBits_{};
  std::int16_t pendingOptionMask_ = 0;
};

}  // namespace vantor::options
