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
    SetBackColor(Color::WindowBackground);
    SetForeColor(Color::WindowText);
  }

  [[nodiscard]] const std::wstring& Text() const { return text_; }
  /// Puts the caret at the start of the new text and raises Change; setting the text it already has does nothing.
  void SetText(std::wstring_view text);

  [[nodiscard]] int SelStart() const { return selStart_; }
  [[nodiscard]] int SelLength() const { return selLength_; }
  /// Both are brought into the text where they reach beyond it.
  void Select(int start, int length);
  /// A locked box shows its text and lets it be selected and copied, but only the program changes it.
  [[nodiscard]] bool Locked() const { return locked_; }
  void SetLocked(bool locked) { locked_ = locked; }  // before the form is shown

  void SelectAll() { Select(0, static_cast<int>(text_.size())); }

  [[nodiscard]] bool Composing() const override { return composing_; }

  /// Where that begins which Ctrl and Backspace take: what is selected, or the blanks before the caret and the word, or
  /// the run of other signs, before those.
  [[nodiscard]] int WordStart() const;

  Event<> Change;
  Event<wchar_t&> KeyPress;  // before the character is applied; 0 swallows it
  /// A key that moves the caret was pressed alone; None in its place swallows it. Not told while an input method
  /// composes, whose keys they are then.
  Event<Key&> KeyDown;
  Event<int /*rows*/> Wheel;  // turned over the box; down is positive
  /// An input method begins to compose (true), or ends without having changed the text (false).
  Event<bool> Compose;
  /// A character key, or one that edits, has had its effect, if there was any.
  Event<> KeyDone;
  Event<> DblClick;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;

  // The user's doings, reported by the back end.

  /// A key that moves the caret. Returns the key to apply.
  Key InputKeyDown(Key key);
  /// A character key. Returns the character to apply, 0 for none.
  wchar_t InputKeyPress(wchar_t character);
  void InputKeyDone() { KeyDone(); }
  /// Ctrl and Backspace.
  void InputWordBack();
  /// The text as the user's editing left it.
  void InputEdited(std::wstring_view text, int selStart, int selLength);
  void InputSelection(int selStart, int selLength);
  /// Composing begins or ends. When it ends with another text than it began with, Change is raised once more.
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
  std::wstring textBeforeComposing_;
  bool locked_ = false;
};

}  // namespace vantor::form
