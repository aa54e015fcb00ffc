#pragma once

#include "add/frmBrowse.h"
#include "bar/frmMain.h"
#include "command/CommandState.h"
#include "command/Starters.h"
#include "command/frmMatches.h"
#include "form/UserInterface.h"
#include "list/ListFiles.h"
#include "list/Settings.h"
#include "list/page/ListPage.h"
#include "message/MessageState.h"
#include "message/Messages.h"
#include "options/OptionFlags.h"
#include "options/OptionsPage.h"
#include "panel/CodePage.h"
#include "panel/CompanionPage.h"
#include "panel/HelpPage.h"
#include "panel/PanelSwitch.h"
#include "panel/frmChoose.h"
#include "service/Services.h"
#include "start/frmMove.h"
#include "state/Environment.h"

namespace vantor::start {

/// The whole program: all state, and all forms. The entry point makes one; each test makes its own.
class Program final : private message::MessageHost, private form::DropHandler {
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

  message::Messages Messages{Ui, MessageState, *this};
  command::Starters Starters{Services};
  list::ListFiles ListFiles{Services, Environment, Settings};

  panel::PanelSwitch Panels{Ui, Messages, CommandState};
  panel::PanelContext Context{Services, Environment, Messages, Settings, Starters, Panels};

  start::frmMove frmMove{Ui, Services, Environment};
  panel::frmChoose frmChoose{Ui, Panels, Messages};
  list::ListPage ListPage{frmChoose, Context, ListFiles};
  panel::CompanionPage CompanionPage{frmChoose, Context};
  options::OptionsPage OptionsPage{frmChoose, Context, Options};
  panel::HelpPage HelpPage{frmChoose, Context};
  panel::CodePage CodePage{frmChoose, Context};
  add::frmBrowse frmBrowse{Ui, Context, ListPage.List};
  add::BrowsePanel AddPanel{Panels, panel::menu::Add, frmBrowse, add::BrowseUse::Add};
  add::BrowsePanel OpenPanel{Panels, panel::menu::Open, frmBrowse, add::BrowseUse::Open};
  command::frmMatches frmMatches{Ui, Services.Language};
  bar::frmMain frmMain{Ui, bar::BarParts{Services, Environment, Messages, Settings, Options, Panels, frmChoose,
                                         ListPage.List, ListFiles, CommandState, Starters, frmMatches}};

 private:
  void PauseOnTop() override { frmMain.PauseOnTop(); }
  void ResumeOnTop() override { frmMain.ResumeOnTop(); }
  [[nodiscard]] form::Rect BarPlace() const override { return frmMain.Bounds(); }
  [[nodiscard]] bool CompanionsPresent() const override { return !Environment.Companions.empty(); }
  void SaveUserName() override;
  void EnableRemember() override { OptionsPage.EnableRemember(); }
  [[nodiscard]] message::MessageKey SendMailTo(std::wstring_view address, std::wstring_view subject,
                                               std::wstring_view body) override {
    return Starters.SendMailTo(address, subject, body);
  }
  void Take(const form::DroppedItems& items) override;
};

}  // namespace vantor::start
