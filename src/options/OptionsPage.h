#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "form/Button.h"
#include "form/Static.h"
#include "options/OptionFlags.h"
#include "panel/Page.h"
#include "panel/PanelContext.h"

namespace vantor::options {

/// The preferences page of the list dialog.
class OptionsPage : public panel::Page {
 public:
  static constexpr std::size_t Count = 3;

  OptionsPage(panel::frmChoose& form, const panel::PanelContext& context, OptionFlags& options);

  form::Frame& FrameOptions = Frame;
  std::array<form::CheckBox, Count> CheckOptionMain{form::CheckBox{FrameOptions, L"CheckOptionMain(0)"},
                                                    form::CheckBox{FrameOptions, L"CheckOptionMain(1)"},
                                                    form::CheckBox{FrameOptions, L"CheckOptionMain(2)"}};
  form::CommandButton CommandOptionShortcut{FrameOptions, L"CommandOptionShortcut"};
  form::CommandButton CommandOptionRemember{FrameOptions, L"CommandOptionRemember"};
  form::CommandButton CommandOptionOK{FrameOptions, L"CommandOptionOK"};
  form::CommandButton CommandOptionCancel{FrameOptions, L"CommandOptionCancel"};

  /// Enables the button that remembers this computer, after an item was refused because none is remembered yet.
  void EnableRemember() { CommandOptionRemember.SetEnabled(true); }

  form::Size LayOut() override;
  void Prepare() override;
  form::Control* First() override { return &CheckOptionMain.front(); }

 private:
  void Dress();
  void ConnectEvents();

  void CheckOptionMain_Click(std::size_t index);
  void CommandOptionOK_Click();
  void CommandOptionCancel_Click() { Host().ClosePanel(); }
  void CommandOptionShortcut_Click();
  void CommandOptionRemember_Click();

  void SetStartWithWindows(bool start);
  [[nodiscard]] std::wstring ProgramFile() const;

  panel::PanelContext context_;
  OptionFlags& options_;
  std::array<std::int16_t, Count> optionBits_{};
  std::int16_t pendingOptionMask_ = 0;
};

}  // namespace vantor::options
