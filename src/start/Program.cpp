#include "start/Program.h"

#include "bar/PanelPlace.h"
#include "start/ActiveStart.h"
#include "start/DataFolder.h"

namespace vantor::start {

Program::Program(form::UserInterface& ui, const service::Services& services) : Ui(ui), Services(services) {
  ConnectMessages();
  ConnectBrowse();
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
  hooks.PauseOnTop = [this] {
    if (frmMain.Loaded()) frmMain.PauseOnTop();
  };
  hooks.ResumeOnTop = [this] {
    if (frmMain.Loaded()) frmMain.ResumeOnTop();
  };
  hooks.HomeScreen = [this] { return frmMain.Loaded() ? Ui.ScreenAt(frmMain.Bounds()) : Ui.PrimaryScreen(); };
  hooks.SaveUserName = [this] { SaveUserName(Services, Environment, MessageState.UserName); };
  hooks.SendMailTo = [this](std::wstring_view address, std::wstring_view subject, std::wstring_view body) {
    return Starters.SendMailTo(address, subject, body);
  };
}

void Program::ConnectBrowse() {
  // One form, in two uses.
  for (const std::size_t index : {0U, 1U}) frmMain.SetPanel(index, &frmBrowse);
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
    if (!frmMain.Visible() || frmMain.WindowState() == form::WindowState::Minimized) return;
    frmMain.TextMain.SetText({});
    frmMain.TextMain.SetFocus();
  };
  hooks.HotKey = [this](form::Key key) { frmMain.HotKey(key); };
  hooks.Place = [this](form::Size size) {
    const form::Rect bar = frmMain.Bounds();
    return bar::PlacePanel(bar, size, Ui.ScreenAt(bar).WorkArea);
  };
}

void Program::Take(const form::DroppedItems& items) {
  if (!items.Paths.empty())
    frmBrowse.FillWith(items.Paths);
  else if (!items.Address.empty())
    frmMain.OfferWebSite(items.Address);
}

}  // namespace vantor::start
