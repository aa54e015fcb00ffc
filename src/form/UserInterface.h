#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "form/Form.h"
#include "form/Geometry.h"

namespace vantor::form {

class Timer;

/// The seam between forms and a desktop. Back ends: `Headless`, with no desktop at all, and the Windows one.
class UserInterface {
 public:
  virtual ~UserInterface() = default;
  UserInterface(const UserInterface&) = delete;
  UserInterface& operator=(const UserInterface&) = delete;

  /// The screen that holds most of `place` (a form's bounds), the nearest one if none does.
  [[nodiscard]] virtual Screen ScreenAt(const Rect& place) const = 0;
  [[nodiscard]] virtual Screen PrimaryScreen() const = 0;

  /// A width, in twips, at which no line of a label or a button is broken.
  static constexpr Twips AnyWidth = 30000;
  /// The room that a label's text takes when its lines are broken at `width` twips.
  [[nodiscard]] virtual Size MeasureText(std::wstring_view text, bool bold, Twips width) const = 0;

  /// Handles input and timers until the form is not visible any more or the program ends.
  virtual void RunModal(Form& form) = 0;
  /// Handles input and timers until the program ends.
  virtual void Run() = 0;

  virtual void StartTimer(Timer& timer) = 0;
  virtual void StopTimer(Timer& timer) = 0;

  /// Ends the program: no form has a window any more, and Run and every RunModal return. Runs no handler.
  void End();
  [[nodiscard]] bool Ended() const { return ended_; }

  /// The form that stands modally before all others; null for none.
  [[nodiscard]] Form* ModalForm() const { return modalForms_.empty() ? nullptr : modalForms_.back(); }

 protected:
  UserInterface() = default;
  /// All forms that there are, the oldest first.
  [[nodiscard]] const std::vector<Form*>& Forms() const { return forms_; }
  /// Makes the windows of a form and its controls, hidden; null when the back end has no windows.
  virtual std::unique_ptr<FormWindow> MakeWindow(Form& form) = 0;
  /// Destroys a form's windows, perhaps only once no message of theirs is being handled any more. From this call
  /// on they never touch the form or its controls again.
  virtual void Discard(std::unique_ptr<FormWindow> window) = 0;
  /// Wakes up the loops of Run and RunModal, so that they see Ended().
  virtual void WakeUp() = 0;
  /// A modal form begins or ends: the back end disables and enables the windows of the others.
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
