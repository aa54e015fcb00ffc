#include "start/Program.h"

#include "start/ActiveStart.h"
#include "start/DataFolder.h"

namespace vantor::start {

Program::Program(form::UserInterface& ui, const service::Services& services) : Ui(ui), Services(services) {
  ConnectMessages();
  for (form::Form* form : {static_cast<form::Form*>(&frmMain), static_cast<form::Form*>(&frmBrowse)}) {
    form->SetAcceptsDrops(true);
    form->Dropped = [this](const form::DroppedItems& items) { Take(items); };
  }
  ListPage.Changed = [this] { frmMain.CompleteLine(); };
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

void Program::Take(const form::DroppedItems& items) {
  if (!items.Paths.empty())
    frmBrowse.FillWith(items.Paths);
  else if (!items.Address.empty())
    frmMain.OfferWebSite(items.Address);
}

}  // namespace vantor::start
