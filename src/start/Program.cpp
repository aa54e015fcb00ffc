#include "start/Program.h"

#include "start/ActiveStart.h"
#include "start/DataFolder.h"

namespace vantor::start {

Program::Program(form::UserInterface& ui, const service::Services& services) : Ui(ui), Services(services) {
  frmMain.AcceptDrops(*this);
  frmBrowse.AcceptDrops(*this);
}

void Program::Main() {
  Messages.Trap(L"ActiveStart", [this] { ActiveStart(*this).Run(); });
  if (frmMain.Visible())
    Ui.Run();
  else
    Ui.End();
}

void Program::SaveUserName() { start::SaveUserName(Services, Environment, MessageState.UserName); }

void Program::Take(const form::DroppedItems& items) {
  if (!items.Paths.empty())
    frmBrowse.FillWith(items.Paths);
  else if (!items.Address.empty())
    frmMain.OfferWebSite(items.Address);
}

}  // namespace vantor::start
