#pragma once

#include "form/Event.h"

namespace vantor::form {

class Form;
class UserInterface;

/// Raises Tick every Interval milliseconds while it is enabled, on the user-interface thread. Ticks never
/// overlap. Enabling it starts a new full interval; enabling an enabled timer does nothing.
class Timer {
 public:
  Timer(Form& form, int intervalMilliseconds);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  [[nodiscard]] int Interval() const { return interval_; }

  Event<> Tick;

  /// The interval has passed, reported by the back end.
  void InputTick();

 private:
  UserInterface& ui_;
  int interval_;
  bool enabled_ = false;
  bool ticking_ = false;
};

}  // namespace vantor::form
