#pragma once

#include <string>
#include <string_view>

#include "form/Control.h"
#include "form/Keys.h"

namespace vantor::form {

/// A single-line text box. Selection positions count characters from 0.
class TextBox : public Control {
 public:
  /// Parent: a Form, or a control that serves as container.
  template <class Parent>
  TextBox(Parent& parent, std::wstring_view name) : Control(parent, name) {
    UseWindowColors();
  }

  [[nodiscard]] const std::wstring& Text() const { return text_; }
  /// Puts the caret at the start of the new text and raises Change; setting the text it already has does nothing.
  void SetText(std::wstring_view text);

  [[nodiscard]] int SelStart() const { return selStart_; }
  [[nodiscard]] int SelLength() const { return selLength_; }
  /// Positions beyond the text are clamped to it.
  void Select(int start, int length);
  /// A locked box shows its text and lets it be selected and copied, but only the program changes it.
  [[nodiscard]] bool Locked() const { return locked_; }
  void SetLocked(bool locked) { locked_ = locked; }  // before the form is shown

  void SelectAll() { Select(0, static_cast<int>(text_.size())); }

  [[nodiscard]] bool Composing() const override { return composing_; }

  /// The start of what Ctrl+Backspace removes: the selection, or the blanks before the caret together with the word,
  /// or the run of punctuation, before them.
  [[nodiscard]] int WordStart() const;

  Event<> Change;
  Event<wchar_t&> KeyPress;  // before the character is applied; 0 swallows it
  /// A caret key was pressed without modifiers; setting it to None swallows it. Not raised while an input method is
  /// composing, because the keys are meant for it.
  Event<Key&> KeyDown;
  Event<int /*rows*/> Wheel;  // turned over the box; positive is down
  /// An input method starts composing (true), or ends without an edit (false).
  Event<bool> Compose;
  /// A character key or an editing key has taken effect, if it had any.
  Event<> KeyDone;
  Event<> DblClick;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;

  // What the user does, as reported by the back end.

  /// A caret key. Returns the key to apply.
  Key InputKeyDown(Key key);
  /// A character key. Returns the character to apply, 0 for none.
  wchar_t InputKeyPress(wchar_t character);
  void InputKeyDone() { KeyDone(); }
  /// Ctrl and Backspace.
  void InputWordBack();
  /// The text after an edit by the user.
  void InputEdited(std::wstring_view text, int selStart, int selLength);
  void InputSelection(int selStart, int selLength);
  /// Composing starts or ends. If the text was edited meanwhile, Change is raised once more, even if it is the same.
  void InputComposing(bool composing);
  void InputDblClick() override;
  void InputCharacter(wchar_t character) override;
  void InputWheel(int rows);

 private:
  void InputErase(int start);

  std::wstring text_;
  int selStart_ = 0;
  int selLength_ = 0;
  bool composing_ = false;
  bool composed_ = false;  // the text has been edited since composing started
  bool locked_ = false;
};

}  // namespace vantor::form
