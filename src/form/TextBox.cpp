#include "form/TextBox.h"

#include <algorithm>
#include <cstddef>

#include "form/Keys.h"

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

void TextBox::InputEdited(std::wstring_view text, int selStart, int selLength) {
  if (!AcceptsInput() || locked_) return;
  InputSelection(selStart, selLength);
  if (text_ == text) return;
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
  if (composing_) textBeforeComposing_ = text_;
  if (composing_ || text_ == textBeforeComposing_) {
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
  std::wstring edited = text_;
  auto start = static_cast<std::size_t>(selStart_);
  auto length = static_cast<std::size_t>(selLength_);
  if (applied == CharBackspace) {
    if (length == 0 && start > 0) {
      --start;
      length = 1;
    }
    edited.erase(start, length);
  } else if (applied >= L' ') {
    edited.replace(start, length, 1, applied);
    ++start;
  } else {
    return;
  }
  InputEdited(edited, static_cast<int>(start), 0);
}

Size TextBox::LeastSize() const {
  constexpr Twips AroundText = 60;  // the edges
  return {0, TextSize(L"x").Height + AroundText};
}

void TextBox::InputDblClick() {
  if (AcceptsInput()) DblClick();
}

}  // namespace vantor::form
