#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "form/Control.h"

namespace vantor::form {

/// What the user does to a list.
enum class ListInput {
  None,
  Click,  // by mouse
  Walk,   // moving from entry to entry by arrow keys, letters or the wheel
  Enter,
};

/// The base of all lists: entries in order, and the index of the selected one (-1: none).
class ListControl : public Control {
 public:
  template <class Parent>
  ListControl(Parent& parent, std::wstring_view name) : Control(parent, name) {
    UseWindowColors();
  }

  [[nodiscard]] int ListCount() const { return static_cast<int>(list_.size()); }
  /// Entry `index`, 0 to ListCount() - 1; throws std::out_of_range beyond.
  [[nodiscard]] const std::wstring& List(int index) const { return list_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] const std::vector<std::wstring>& Entries() const { return list_; }

  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// Selects an entry and raises Click once; selecting the current index again raises nothing, nor does -1,
  /// which clears the selection. Throws std::out_of_range for an index that is not -1 to ListCount() - 1.
  void SetListIndex(int index);
  /// The selected entry, "" if there is none.
  [[nodiscard]] std::wstring Text() const;

  Event<> Click;
  Event<> DblClick;

  /// The source of the event being handled; None if the program itself caused it.
  [[nodiscard]] ListInput Input() const { return input_; }
  /// Whether the user can move to an entry with the keyboard. Other entries may still be chosen.
  [[nodiscard]] virtual bool Ready(int /*index*/) const { return true; }

  // What the user does, as reported by the back end.

  /// A click on the selected entry selects it again; walking to it does not.
  void InputSelect(int index, ListInput how = ListInput::Click);
  /// Moves to an entry, or to the nearest one that is ready: first looking further on, then back. An index beyond the
  /// ends counts as the end.
  void InputWalk(int index);
  void InputDblClick() override;
  void InputEnter();

 protected:
  /// Replaces all entries and clears the selection. Raises nothing.
  void ReplaceEntries(std::vector<std::wstring> entries);
  /// An entry was selected by the user or the program.
  virtual void EntrySelected() { Click(); }
  /// What a double click, or Enter on an entry, does after the event.
  virtual void EntryChosen() {}
  /// What Enter does before it counts as a double click.
  virtual void EnterPressed() {}

  std::vector<std::wstring> list_;
  int listIndex_ = -1;

 private:
  void ChooseEntry();

  ListInput input_ = ListInput::None;
};

/// A list that shows its selected entry, and all entries when it is dropped down.
class DropDownList : public ListControl {
 public:
  using ListControl::ListControl;

  /// Whether arrow keys in the dropped list only move the highlight, so that Enter or a click chooses.
  [[nodiscard]] virtual bool ChoosesAtEnd() const { return false; }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;
};

/// A list that shows its entries all the time. Enter does what a double click does.
class OpenList : public ListControl {
 public:
  using ListControl::ListControl;

  /// The indentation level of entry `index`.
  [[nodiscard]] virtual int LevelOf(int /*index*/) const { return 0; }

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  void InputCharacter(wchar_t character) override;
};

/// A drop-down list whose entries the program adds, renames and removes. It is not sorted.
class ComboBox : public DropDownList {
 public:
  using DropDownList::DropDownList;

  /// Appends an entry; the selection stays.
  void AddItem(std::wstring_view text);
  void Reserve(int count) { list_.reserve(static_cast<std::size_t>(count)); }
  /// Replaces the text of one entry; the selection stays. Throws std::out_of_range.
  void SetList(int index, std::wstring_view text);
  /// Removes an entry. The selection stays on its entry, and is cleared if that entry is removed. Raises nothing.
  /// Throws std::out_of_range.
  void RemoveItem(int index);
  void Clear() { ReplaceEntries({}); }
};

/// Entries that the program gives; a double click or Enter chooses one.
class ListBox : public OpenList {
 public:
  using OpenList::OpenList;

  /// Replaces all entries and clears the selection. Raises nothing.
  void SetEntries(std::vector<std::wstring> entries) { ReplaceEntries(std::move(entries)); }
};

}  // namespace vantor::form
