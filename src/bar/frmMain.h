#pragma once

#include <array>
#include <cstddef>

#include "bar/Panel.h"
#include "command/CommandLine.h"
#include "command/CommandState.h"
#include "command/Starters.h"
#include "form/Button.h"
#include "form/Form.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "form/Timer.h"
#include "list/ListFiles.h"
#include "list/Settings.h"
#include "list/frmChoose.h"
#include "message/Messages.h"
#include "options/OptionFlags.h"
#include "service/Services.h"
#include "start/Environment.h"

namespace vantor::bar {

/// What the bar works with. All of it outlives the bar.
struct BarParts {
  service::Services Services;
  const start::Environment& Environment;
  message::Messages& Messages;
  list::Settings& Settings;
  options::OptionFlags& Options;
  list::frmChoose& Choose;
  list::ListFiles& ListFiles;
  command::CommandState& CommandState;
  command::Starters& Starters;
};

/// The bar: the program's face.
class frmMain : public form::Form {
 public:
  /// Of the CommandMenu buttons.
  static constexpr std::size_t MenuCount = 7;
  static constexpr std::size_t CompanionsMenu = 3;

  frmMain(form::UserInterface& ui, const BarParts& parts);

  form::Frame FrameButtons{*this, L"FrameButtons"};
  form::CommandButton CommandWeb{FrameButtons, L"CommandWeb"};
  std::array<form::CommandButton, MenuCount> CommandMenu{
      form::CommandButton{FrameButtons, L"CommandMenu(0)"}, form::CommandButton{FrameButtons, L"CommandMenu(1)"},
      form::CommandButton{FrameButtons, L"CommandMenu(2)"}, form::CommandButton{FrameButtons, L"CommandMenu(3)"},
      form::CommandButton{FrameButtons, L"CommandMenu(4)"}, form::CommandButton{FrameButtons, L"CommandMenu(5)"},
      form::CommandButton{FrameButtons, L"CommandMenu(6)"}};
  form::TextBox TextMain{FrameButtons, L"TextMain"};
  form::CommandButton CommandMin{FrameButtons, L"CommandMin"};
  form::CommandButton CommandExit{FrameButtons, L"CommandExit"};

  form::Timer TimerOnTop{*this, 1000};
  form::Timer TimerWatchOnTop{*this, 1000};

  /// The panel that CommandMenu(index) opens. A button without one is not shown.
  void SetPanel(std::size_t index, Panel& panel);

  /// A message or a panel opens: the bar leaves the topmost band, if it keeps itself there.
  void PauseOnTop();
  /// A message or a panel has closed: with no panel open, the bar keeps itself on top if the user wants that.
  void ResumeOnTop();
};

}  // namespace vantor::bar
