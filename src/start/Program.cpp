#include "start/Program.h"

#include "add/MachineIdentity.h"
#include "bar/PanelPlace.h"
#include "start/ActiveStart.h"
#include "start/DataFolder.h"

namespace vantor::start {

Program::Program(form::UserInterface& ui, const service::Services& services) : Ui(ui), Services(services) {
  ConnectMessages();
  ConnectBrowse();
  ConnectChoose();
}

void Program::Main() {
  Messages.Trap(L"ActiveStart", [this] { ActiveStart(*this).Run(); });
  if (frmMain.Visible())
    Ui.Run();
  else
    Ui.End();
}

void Program::ConnectMessages() {
  message::MessageHooks& hooks = Messages.Hooks;
  // The messages of the start come before there is a bar.
  hooks.PauseOnTop = [this] { frmMain.PauseOnTop(); };
  hooks.ResumeOnTop = [this] { frmMain.ResumeOnTop(); };
  hooks.HomeScreen = [this] { return frmMain.Loaded() ? Ui.ScreenAt(frmMain.Bounds()) : Ui.PrimaryScreen(); };
  hooks.SaveUserName = [this] { SaveUserName(Services, Environment, MessageState.UserName); };
  hooks.SendMailTo = [this](std::wstring_view address, std::wstring_view subject, std::wstring_view body) {
    return Starters.SendMailTo(address, subject, body);
  };
  hooks.EnableRemember = [this] { OptionsPage.EnableRemember(); };
  hooks.CompanionsPresent = [this] { return !Environment.Companions.empty(); };
}

void Program::ConnectBrowse() {
  // One form, in two uses.
  for (const std::size_t index : {bar::menu::Add, bar::menu::Open}) frmMain.SetPanel(index, &frmBrowse);
  for (form::Form* form : {static_cast<form::Form*>(&frmMain), static_cast<form::Form*>(&frmBrowse)}) {
    form->SetAcceptsDrops(true);
    form->Dropped = [this](const form::DroppedItems& items) { Take(items); };
  }
  add::BrowseHooks& hooks = frmBrowse.Hooks;
  hooks.OpenPanel = [this](int index) {
    if (CommandState.OpenPanelIndex != index) frmMain.CommandMenu.at(static_cast<std::size_t>(index)).DoClick();
  };
  hooks.ClosePanel = [this] { frmMain.ClosePanel(); };
  hooks.ItemAdded = [this] {
    if (frmMain.Visible() && frmMain.WindowState() != form::WindowState::Minimized) frmMain.ClearTextMain();
  };
  hooks.HotKey = [this](form::Key key) { frmMain.HotKey(key); };
  hooks.Place = [this](form::Form& panel) { PlaceByBar(panel); };
}

void Program::ConnectChoose() {
  frmMain.SetPanel(bar::menu::List, &ListPanel);
  frmMain.SetPanel(bar::menu::Options, &OptionsPanel);
  frmMain.SetPanel(bar::menu::Help, &HelpPanel);
  frmMain.SetPanel(bar::menu::Code, &CodePanel);
  list::ChooseHooks& hooks = frmChoose.Hooks;
  hooks.ClosePanel = [this] { frmMain.ClosePanel(); };
  hooks.RunProgram = [this](std::wstring_view target) { Messages.ShowList(Starters.RunProgramFile(target)); };
  hooks.OpenWebItem = [this](std::wstring_view target) { Messages.ShowList(Starters.OpenWebItem(target)); };
  hooks.OpenWithShell = [this](std::wstring_view target) { Messages.ShowList(Starters.OpenWithShell(target)); };
  hooks.HotKey = [this](form::Key key) { frmMain.HotKey(key); };
  hooks.Place = [this](form::Form& panel) { PlaceByBar(panel); };
  CompanionPage.Start = [this](std::wstring_view target) {
    frmMain.ClosePanel();
    Messages.ShowList(Starters.RunProgramFile(target));
  };
  OptionsPage.Hooks.ClosePanel = [this] { frmMain.ClosePanel(); };
  OptionsPage.Hooks.RememberMyComputer = [this] { return add::RememberMyComputer(Services, Messages, Environment); };
}

void Program::PlaceByBar(form::Form& panel) const {
  const form::Rect& bar = frmMain.Bounds();
  panel.MoveTo(bar.Left, bar.Bottom());  // so that it is fitted to the bar's screen
  const form::Rect place =
      bar::PlacePanel(bar, {panel.Bounds().Width, panel.Bounds().Height}, Ui.ScreenAt(bar).WorkArea);
  panel.MoveTo(place.Left, place.Top);
}

void Program::Take(const form::DroppedItems& items) {
  if (!items.Paths.empty())
    frmBrowse.FillWith(items.Paths);
  else if (!items.Address.empty())
    frmMain.OfferWebSite(items.Address);
}

}  // namespace vantor::start
