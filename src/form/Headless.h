#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "form/RowList.h"
#include "form/TextBox.h"
#include "form/UserInterface.h"

namespace vantor::form {

/// A desktop without windows: one screen, a clock that stands still until told, and a user who does what a
/// test says. A program on it runs to the letter as on a real desktop.
class Headless : public UserInterface {
 public:
  Headless();
  ~Headless() override;

  /// The one screen, 1024 by 768 pixels of 15 twips at first.
  Screen Desktop;
  /// How wide and how high the user's font is.
  Twips CharacterWidth = 90;
  Twips LineHeight = 195;

  /// Lets time pass, raising the ticks that fall into it in order.
  void Advance(int milliseconds);

  /// What the user does while the next modal form stands open. Scripts are used in the order given, one a form;
  /// a modal form without one throws std::logic_error, so that a test sees a message it did not expect.
  void WhenModal(std::function<void(Form&)> script);
  /// Whether all scripts have been used.
  [[nodiscard]] bool ModalScriptsDone() const { return modalScripts_.empty(); }

  /// The form that has the focus: the modal one, else the one activated or shown last that is still shown.
  [[nodiscard]] Form* ActiveForm() const;

  // The user's hands.

  /// Types characters into the control that has the focus. Backspace is '\b', Enter '\r', Escape '\x1b'.
  void Type(std::wstring_view text);
  /// Presses and lets go a key; for the text keys this types their character too.
  void Press(Key key);
  /// Presses a key with Ctrl: Backspace or A, in a text box.
  void PressControl(Key key);
  void Click(Control& control);
  void DoubleClick(Control& control);
  /// Presses the mouse over a row and lets it go there.
  void ClickRow(RowList& list, int row);
  /// Turns the wheel by so many rows over a text box or a row list.
  void Wheel(Control& control, int rows);
  /// Works in another program, until a form is activated again.
  void Leave();
  /// Drags the form by (x, y) twips, by a free spot of it.
  void DragBy(Form& form, Twips x, Twips y);

  [[nodiscard]] Screen ScreenAt(const Rect& place) const override;
  [[nodiscard]] Screen PrimaryScreen() const override;
  /// Every character is CharacterWidth wide, every line LineHeight high.
  [[nodiscard]] Size MeasureText(std::wstring_view text, bool bold, Twips width) const override;
  void RunModal(Form& form) override;
  void Run() override;
  void StartTimer(Timer& timer) override;
  void StopTimer(Timer& timer) override;

 protected:
  std::unique_ptr<FormWindow> MakeWindow(Form& form) override;
  void WakeUp() override {}
  void Discard(std::unique_ptr<FormWindow> window) override;
  void ModalChanged() override {}
  void FormGone(Form& form) override;

 private:
  class Window;
  struct RunningTimer {
    form::Timer* Timer = nullptr;
    long long Due = 0;  // by now_
  };

  void TypeCharacter(wchar_t character);
  /// Tells forms which of them the user works in now.
  void TellActive(Form* active);

  std::vector<RunningTimer> timers_;
  Form* toldActive_ = nullptr;
  std::vector<Form*> activated_;  // the last one most recently; a hidden form gives way to the one before
  Twips dragX_ = 0;
  Twips dragY_ = 0;
  std::deque<std::function<void(Form&)>> modalScripts_;
  long long now_ = 0;
};

}  // namespace vantor::form
