#pragma once

#include "add/frmBrowse.h"
#include "bar/ChoosePanel.h"
#include "bar/CodePage.h"
#include "bar/CompanionPage.h"
#include "bar/HelpPage.h"
#include "bar/frmMain.h"
#include "command/CommandState.h"
#include "command/Starters.h"
#include "form/UserInterface.h"
#include "list/ListFiles.h"
#include "list/Settings.h"
#include "list/frmChoose.h"
#include "message/MessageState.h"
#include "message/Messages.h"
#include "options/OptionFlags.h"
#include "options/OptionsPage.h"
#include "service/Services.h"
#include "start/frmMove.h"
#include "state/Environment.h"

namespace vantor::start {

/// The whole program: all state, and all forms. The entry point makes one; each test makes its own.
class Program {
 public:
  /// Keeps both by reference.
  Program(form::UserInterface& ui, const service::Services& services);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Runs the start sequence, and then the program until it ends.
  void Main();

  form::UserInterface& Ui;
  service::Services Services;

  state::Environment Environment;
  list::Settings Settings;
  options::OptionFlags Options;
  message::MessageState MessageState;
  command::CommandState CommandState;

  message::Messages Messages{Ui, MessageState};
  command::Starters Starters{Services};
  list::ListFiles ListFiles{Services, Environment, Settings};

  start::frmMove frmMove{Ui, Services, Environment};
  list::frmChoose frmChoose{Ui, ListFiles, Services.Language, Messages};
  options::OptionsPage OptionsPage{frmChoose, {Services.ScriptShell, Environment, Messages, Settings, Options}};
  bar::CompanionPage CompanionPage{frmChoose, Environment, Messages};
  bar::HelpPage HelpPage{frmChoose, Environment};
  bar::CodePage CodePage{frmChoose, Environment};
  bar::ListPanel ListPanel{frmChoose};
  bar::ChoosePanel CompanionPanel{frmChoose, CompanionPage};  // the bar's when there are any
  bar::ChoosePanel OptionsPanel{frmChoose, OptionsPage};
  bar::ChoosePanel HelpPanel{frmChoose, HelpPage};
  bar::ChoosePanel CodePanel{frmChoose, CodePage};
  add::frmBrowse frmBrowse{
      Ui, add::BrowseParts{Services, Environment, Messages, Settings, frmChoose.List, CommandState, Starters}};
  bar::frmMain frmMain{Ui, bar::BarParts{Services, Environment, Messages, Settings, Options, frmChoose, ListFiles,
                                         CommandState, Starters}};

 private:
  void ConnectMessages();
  void ConnectBrowse();
  void Take(const form::DroppedItems& items);
  void ConnectChoose();
  /// Moves a panel to where it stands best beside the bar.
  void PlaceByBar(form::Form& panel) const;
};

}  // namespace vantor::start
