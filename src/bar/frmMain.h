#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "bar/AddWebBox.h"
#include "command/CommandLine.h"
#include "command/CommandState.h"
#include "command/Starters.h"
#include "command/frmMatches.h"
#include "form/Button.h"
#include "form/Form.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "form/Timer.h"
#include "list/ListFiles.h"
#include "list/Settings.h"
#include "message/Messages.h"
#include "options/OptionFlags.h"
#include "panel/PanelSwitch.h"
#include "service/Services.h"
#include "state/Environment.h"
#include "state/Pictures.h"

namespace vantor::bar {

/// The objects that the bar works with. All of them outlive it.
struct BarParts {
  service::Services Services;
  const state::Environment& Environment;
  message::Messages& Messages;
  list::Settings& Settings;
  options::OptionFlags& Options;
  panel::PanelSwitch& Panels;
  form::Form& Choose;  // loading it fills the list
  const list::LaunchList& List;
  list::ListFiles& ListFiles;
  command::CommandState& CommandState;
  const command::Starters& Starters;
  command::frmMatches& Matches;
};

/// The bar, the main form. Unloading it saves the settings and the launch list and ends the program.
class frmMain : public form::Form, public panel::MenuBar, private command::LineOwner {
 public:
  /// The pictures of buttons: 0, 1 and 2 normal, pressed and disabled, 5 normal again for the panels'
  /// buttons, 6 and 7 the faces of CommandWeb while its box is folded and unfolded.
  static constexpr std::array<form::Picture, 8> BButton{{
      {form::Background::Normal},
      {form::Background::Pressed},
      {form::Background::Disabled},
      {},
      {},
      {form::Background::Normal},
      {form::Background::Normal, state::picture::Unfold},
      {form::Background::Normal, state::picture::Fold},
  }};

  frmMain(form::UserInterface& ui, const BarParts& parts);

  form::Frame FrameButtons{*this, L"FrameButtons"};
  form::Image ImageLauncher{FrameButtons, L"ImageLauncher"};
  form::CommandButton CommandWeb{FrameButtons, L"CommandWeb"};
  std::array<form::CommandButton, panel::menu::Count> CommandMenu{
      form::CommandButton{FrameButtons, L"CommandMenu(0)"}, form::CommandButton{FrameButtons, L"CommandMenu(1)"},
      form::CommandButton{FrameButtons, L"CommandMenu(2)"}, form::CommandButton{FrameButtons, L"CommandMenu(3)"},
      form::CommandButton{FrameButtons, L"CommandMenu(4)"}, form::CommandButton{FrameButtons, L"CommandMenu(5)"},
      form::CommandButton{FrameButtons, L"CommandMenu(6)"}};
  form::TextBox TextMain{FrameButtons, L"TextMain"};
  form::CommandButton CommandMin{FrameButtons, L"CommandMin"};
  form::CommandButton CommandExit{FrameButtons, L"CommandExit"};
  AddWebBox Web;

  form::Timer TimerOnTop{*this, 1000};
  form::Timer TimerWatchOnTop{*this, 1000};

  /// Unfolds the add-web box with an address in it, ready for the name.
  void OfferWebSite(std::wstring_view address);

  [[nodiscard]] form::Rect Place() const override { return Bounds(); }
  void ShowMenuFaces() override;
  /// A message or a panel opens: the bar stops being topmost, if it was.
  void PauseOnTop() override;
  /// A message or a panel has closed: with no panel open, the bar keeps itself on top if the user wants that.
  void ResumeOnTop() override;
  void FocusLine() override { TextMain.SetFocus(); }
  /// Goes back to an empty command line, unless the bar is hidden or minimised.
  void ClearLine() override;
  /// Completes the line from the changed list.
  void ListChanged() override { commandLine_.CompleteAgain(); }
  void HotKey(form::Key key) override;

 protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyUp(form::Key key) override;
  void Form_MouseMove(form::MouseButton held) override;
  void Form_Moved() override;
  void Form_ScreensChanged() override;
  /// Always wide enough for the unfolded box, so that folding it does not change the scale.
  [[nodiscard]] form::Size RoomNeeded() const override;
  void Form_Minimized() override;

 private:
  void NameControls();
  void HandleEvents();

  // Place and size.
  void LayOut();
  void ShowWidth();
  /// Also moves the open panel.
  void KeepOnScreen();
  /// The place for a list of this size: below the command line, or above it if there is no room below.
  [[nodiscard]] form::Rect PlaceAtLine(form::Size list) const;

  void CommandWeb_Click();
  void CommandMenu_Click(std::size_t index) { parts_.Panels.Click(index); }
  void CommandMin_Click();
  void CommandExit_Click() { Unload(); }
  void WatchForRestore();
  void Minimize() override { CommandMin.DoClick(); }
  void ClosePanel() override { parts_.Panels.ClosePanel(); }
  void TimerOnTop_Timer();
  void TimerWatchOnTop_Timer();
  void EmptyTextMain() { TextMain.SetText({}); }
  void ShowWebFace();
  [[nodiscard]] bool StayOnTop() const { return parts_.Options.AlwaysOnTop != 0; }

  BarParts parts_;
  command::CommandLine commandLine_;
  double twipsPerPixelX_ = 15;
  form::Screen screen_;  // the one that the bar was last on
  form::Twips height_ = 0;
  form::Twips narrowWidth_ = 0;  // to the right edge of CommandExit
  form::Twips wideWidth_ = 0;    // to the right edge of the unfolded add-web box
  bool addWebShown_ = false;
  /// How unfolding the add-web box last moved the bar's left edge.
  struct Pull {
    form::Twips From = 0;
    form::Twips To = 0;
    form::Twips Top = 0;
  } pull_;
  std::int16_t idleTicks_ = 0;
};

}  // namespace vantor::bar
