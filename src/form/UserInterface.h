#pragma once

#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "form/Form.h"
#include "form/Geometry.h"

namespace vantor::form {

class Timer;

/// The interface between forms and a desktop. Its back ends are `Headless`, without any desktop, and the Windows one.
class UserInterface {
 public:
  virtual ~UserInterface() = default;
  UserInterface(const UserInterface&) = delete;
  UserInterface& operator=(const UserInterface&) = delete;

  /// The screen that contains most of `place` (a form's bounds), or the nearest one if none does.
  [[nodiscard]] virtual Screen ScreenAt(const Rect& place) const = 0;
  [[nodiscard]] virtual Screen PrimaryScreen() const = 0;

  /// A width, in twips, at which no line of a label or a button wraps.
  static constexpr Twips AnyWidth = 30000;
  /// The size of a label's text when it is wrapped at `width` twips.
  [[nodiscard]] virtual Size MeasureText(std::wstring_view text, bool bold, Twips width) const = 0;

  /// Handles input and timers until the form is hidden or the program ends.
  virtual void RunModal(Form& form) = 0;
  /// Handles input and timers until the program ends.
  virtual void Run() = 0;

  virtual void StartTimer(Timer& timer) = 0;
  virtual void StopTimer(Timer& timer) = 0;

  /// Ends the program: removes the windows of all forms and makes Run and every RunModal return. Runs no handlers.
  void End() {
    if (std::exchange(ended_, true)) return;
    for (Form* form : forms_) form->TakeWindowAway();
    WakeUp();
  }
  [[nodiscard]] bool Ended() const { return ended_; }

  /// The form that is modal now; null for none.
  [[nodiscard]] Form* ModalForm() const { return modalForms_.empty() ? nullptr : modalForms_.back(); }

 protected:
  UserInterface() = default;
  /// All existing forms, the oldest first.
  [[nodiscard]] const std::vector<Form*>& Forms() const { return forms_; }
  /// Creates the windows of a form and its controls, hidden. Returns null if the back end has no windows.
  virtual std::unique_ptr<FormWindow> MakeWindow(Form& form) = 0;
  /// Destroys a form's windows, possibly only after all their pending messages have been handled. From this call on
  /// they never touch the form or its controls again.
  virtual void Discard(std::unique_ptr<FormWindow> window) = 0;
  /// Wakes up the loops of Run and RunModal so that they check Ended().
  virtual void WakeUp() = 0;
  /// A form becomes modal or stops being so: the back end disables and enables the windows of the others.
  virtual void ModalChanged() = 0;
  /// Called when a form object is destroyed, for a back end that remembers forms.
  virtual void FormGone(Form& /*form*/) {}

 private:
  friend class Form;

  std::vector<Form*> forms_;
  std::vector<Form*> modalForms_;
  bool ended_ = false;
};

}  // namespace vantor::form
