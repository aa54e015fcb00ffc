#pragma once

#include "form/Form.h"
#include "service/Services.h"
#include "start/Places.h"
#include "state/Environment.h"

namespace vantor::start {

/// A form that is never shown. Loading it finds out where the program runs.
class frmMove : public form::Form {
 public:
  frmMove(form::UserInterface& ui, const service::Services& services, state::Environment& environment)
      : Form(ui, L"frmMove"), services_(services), environment_(environment) {}

 protected:
  void Form_Load() override {
    std::wstring folder = services_.System.ProgramFolder();
    if (!folder.ends_with(L'\\')) folder += L'\\';
    environment_.DriveRoot = DriveRootOf(folder);
    environment_.MediaDriveLetter = services_.Language.Upper(folder.substr(0, 1));
    environment_.ProgramFolderUpper = services_.Language.Upper(folder);
    environment_.ProgramFolder = std::move(folder);
  }

 private:
  service::Services services_;
  state::Environment& environment_;
};

}  // namespace vantor::start
