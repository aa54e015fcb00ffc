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

/// A desktop without windows: one screen, a clock that only moves when told to, and a user who does what a test
/// says. A program on it behaves exactly as on a real desktop.
class Headless : public UserInterface {
 public:
  Headless();
  ~Headless() override;

  /// The one screen, 1024 by 768 pixels of 15 twips at first.
  Screen Desktop;
  /// The width and height of the user's font.
  Twips CharacterWidth = 90;
  Twips LineHeight = 195;

  /// Advances the clock, raising the ticks that fall due in order.
  void Advance(int milliseconds);

  /// What the user does while the next modal form is open. Scripts are used in the order given, one per form;
  /// a modal form without one throws std::logic_error, so that a test sees a message it did not expect.
  void WhenModal(std::function<void(Form&)> script);
  /// Whether all scripts have been used.
  [[nodiscard]] bool ModalScriptsDone() const { return modalScripts_.empty(); }

  /// The form that has the focus: the modal one, else the one activated or shown last that is still shown.
  [[nodiscard]] Form* ActiveForm() const;

  /// Whether the form's window stays above all others.
  [[nodiscard]] bool IsTopMost(const Form& form) const;

  // What the user does.

  /// Types characters into the control that has the focus. Backspace is '\b', Enter '\r', Escape '\x1b'.
  void Type(std::wstring_view text);
  /// Presses and releases a key; text keys also type their character.
  void Press(Key key);
  /// Presses a key with Ctrl: Backspace or A, in a text box.
  void PressControl(Key key);
  void Click(Control& control);
  void DoubleClick(Control& control);
  /// Clicks a row.
  void ClickRow(RowList& list, int row);
  /// Turns the wheel by the given number of rows over a text box or a row list.
  void Wheel(Control& control, int rows);
  /// Switches to another program until a form is activated again.
  void Leave();
  /// Drags the form by (x, y) twips.
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
  /// Tells the forms which of them is the active one now.
  void TellActive(Form* active);

  std::vector<RunningTimer> timers_;
  Form* toldActive_ = nullptr;
  std::vector<Form*> activated_;  // the last one most recently; a hidden form yields to the one before it
  std::vector<const Form*> topMost_;
  Twips dragX_ = 0;
  Twips dragY_ = 0;
  std::deque<std::function<void(Form&)>> modalScripts_;
  long long now_ = 0;
};

}  // namespace vantor::form
