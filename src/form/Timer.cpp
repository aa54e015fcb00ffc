#include "form/Timer.h"

#include "form/Form.h"
#include "form/Scoped.h"
#include "form/UserInterface.h"

namespace vantor::form {

Timer::Timer(Form& form, int intervalMilliseconds) : ui_(form.Ui()), interval_(intervalMilliseconds) {}

Timer::~Timer() { SetEnabled(false); }

void Timer::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  if (enabled_) {
    ui_.StartTimer(*this);
  } else {
    ui_.StopTimer(*this);
  }
}

void Timer::InputTick() {
  // A handler that shows a modal form lets time pass.
  if (!enabled_ || ticking_) return;
  const Scoped ticking(ticking_, true);
  Tick();
}

}  // namespace vantor::form
