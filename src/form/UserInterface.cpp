#include "form/UserInterface.h"

namespace vantor::form {

void UserInterface::End() {
  if (ended_) return;
  ended_ = true;
  for (Form* form : forms_) form->TakeWindowAway();
  WakeUp();
}

}  // namespace vantor::form
