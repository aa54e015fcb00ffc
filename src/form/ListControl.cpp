#include "form/ListControl.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "form/Keys.h"
#include "form/Scoped.h"

namespace vantor::form {

void ListControl::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw std::out_of_range("no such list entry");
  if (index == listIndex_) return;
  listIndex_ = index;
  NotifyWindow(Property::ListIndex);
  if (index != -1) EntrySelected();
}

std::wstring ListControl::Text() const { return listIndex_ == -1 ? std::wstring() : List(listIndex_); }

void ListControl::InputSelect(int index, ListInput how) {
  if (!AcceptsInput()) return;
  const Scoped input(input_, how);
  if (index == listIndex_ && index != -1 && how != ListInput::Walk)
    EntrySelected();
  else
    SetListIndex(index);
}

void ListControl::InputWalk(int index) {
  if (list_.empty()) return;
  const int wanted = std::clamp(index, 0, ListCount() - 1);
  const int step = wanted < listIndex_ ? -1 : 1;
  int entry = wanted;
  while (entry >= 0 && entry < ListCount() && !Ready(entry)) entry += step;
  if (entry < 0 || entry >= ListCount()) {
    entry = wanted;
    while (entry >= 0 && entry < ListCount() && entry != listIndex_ && !Ready(entry)) entry -= step;
  }
  if (entry >= 0 && entry < ListCount()) InputSelect(entry, ListInput::Walk);
}

void ListControl::InputDblClick() {
  if (!AcceptsInput()) return;
  const Scoped input(input_, ListInput::Click);
  ChooseEntry();
}

void ListControl::InputEnter() {
  if (!AcceptsInput()) return;
  const Scoped input(input_, ListInput::Enter);
  EnterPressed();
  ChooseEntry();
}

void ListControl::ChooseEntry() {
  DblClick();
  if (listIndex_ != -1) EntryChosen();
}

void ListControl::ReplaceEntries(std::vector<std::wstring> entries) {
  list_ = std::move(entries);
  listIndex_ = -1;
  NotifyWindow(Property::List);
}

Size DropDownList::LeastSize() const {
  constexpr Twips AroundText = 75;
  return {0, TextSize(L"x").Height + AroundText};
}

void OpenList::InputCharacter(wchar_t character) {
  if (character == CharEnter) InputEnter();
}

void ComboBox::AddItem(std::wstring_view text) {
  list_.emplace_back(text);
  NotifyWindow(Property::List);
}

void ComboBox::SetList(int index, std::wstring_view text) {
  list_.at(static_cast<std::size_t>(index)) = text;
  NotifyWindow(Property::List);
}

void ComboBox::RemoveItem(int index) {
  if (index < 0 || index >= ListCount()) throw std::out_of_range("no such list entry");
  list_.erase(list_.begin() + index);
  if (index == listIndex_) {
    listIndex_ = -1;
  } else if (index < listIndex_) {
    --listIndex_;
  }
  NotifyWindow(Property::List);
}

}  // namespace vantor::form
