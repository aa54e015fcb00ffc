#include "list/frmChoose.h"

namespace vantor::list {

frmChoose::frmChoose(form::UserInterface& ui, const ListFiles& files) : Form(ui, L"frmChoose"), files_(files) {}

void frmChoose::Form_Load() { files_.LoadLaunchList(List); }

}  // namespace vantor::list
