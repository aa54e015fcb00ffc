#include "form/TextBox.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "form/Keys.h"
#include "text/Ascii.h"

namespace vantor::form {

void TextBox::SetText(std::wstring_view text) {
  if (text_ == text) return;
  text_ = text;
  selStart_ = 0;
  selLength_ = 0;
  NotifyWindow(Property::Text);
  Change();
}

void TextBox::Select(int start, int length) {
  const int size = static_cast<int>(text_.size());
  selStart_ = std::clamp(start, 0, size);
  selLength_ = std::clamp(length, 0, size - selStart_);
  NotifyWindow(Property::Selection);
}

wchar_t TextBox::InputKeyPress(wchar_t character) {
  if (!AcceptsInput() || locked_) return 0;
  KeyPress(character);
  return character;
}

Key TextBox::InputKeyDown(Key key) {
  if (AcceptsInput() && !composing_) KeyDown(key);
  return key;
}

int TextBox::WordStart() const {
  if (selLength_ > 0) return selStart_;
  const auto kind = [](wchar_t c) {
    if (c == L' ') return 0;
    return c > 0x7F || text::IsDigit(c) || text::IsLetter(c) ? 1 : 2;
  };
  auto start = static_cast<std::size_t>(selStart_);
  while (start > 0 && kind(text_[start - 1]) == 0) --start;
  if (start == 0) return 0;
  const int taken = kind(text_[start - 1]);
  while (start > 0 && kind(text_[start - 1]) == taken) --start;
  return static_cast<int>(start);
}

void TextBox::InputEdited(std::wstring_view text, int selStart, int selLength) {
  if (!AcceptsInput() || locked_) return;
  // Letters typed over the same ones, as over the last one of a completion, are an edit, too.
  const bool typedOver = selLength_ > 0 && selLength == 0;
  InputSelection(selStart, selLength);
  if (text_ == text && !typedOver) return;
  composed_ = composing_;
  text_ = text;
  Change();
}

void TextBox::InputSelection(int selStart, int selLength) {
  selStart_ = selStart;
  selLength_ = selLength;
}

void TextBox::InputComposing(bool composing) {
  if (composing_ == composing) return;
  composing_ = composing;
  if (!std::exchange(composed_, false)) {
    Compose(composing_);
  } else {
    Change();
  }
}

void TextBox::InputWheel(int rows) {
  if (AcceptsInput()) Wheel(rows);
}

void TextBox::InputCharacter(wchar_t character) {
  const wchar_t applied = InputKeyPress(character);
  if (applied == CharBackspace) {
    InputErase(selLength_ > 0 ? selStart_ : std::max(selStart_ - 1, 0));
  } else if (applied >= L' ') {
    std::wstring edited = text_;
    edited.replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), 1, applied);
    InputEdited(edited, selStart_ + 1, 0);
  }
  KeyDone();
}

void TextBox::InputWordBack() {
  if (InputKeyPress(CharBackspace) == CharBackspace) InputErase(WordStart());
  KeyDone();
}

/// Removes the text from `start` to the end of the selection.
void TextBox::InputErase(int start) {
  std::wstring edited = text_;
  edited.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(selStart_ + selLength_ - start));
  InputEdited(edited, start, 0);
}

Size TextBox::LeastSize() const {
  constexpr Twips AroundText = 60;  // the edges
  return {0, TextSize(L"x").Height + AroundText};
}

void TextBox::InputDblClick() {
  if (AcceptsInput()) DblClick();
}

}  // namespace vantor::form
