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
  Walk,   // from entry to entry, by arrows, letters or the wheel
  Enter,
};

/// What the list kinds share: entries in order, and the index of the one that is selected (-1: none).
class ListControl : public Control {
 public:
  [[nodiscard]] int ListCount() const { return static_cast<int>(list_.size()); }
  /// Entry `index`, 0 to ListCount() - 1; throws std::out_of_range beyond.
  [[nodiscard]] const std::wstring& List(int index) const { return list_.at(static_cast<std::size_t>(index)); }
  [[nodiscard]] const std::vector<std::wstring>& Entries() const { return list_; }

  [[nodiscard]] int ListIndex() const { return listIndex_; }
  /// Selects an entry and raises Click once; the index that is selected already raises nothing, nor does -1,
  /// which selects none. Throws std::out_of_range for an index that is not -1 to ListCount() - 1.
  void SetListIndex(int index);
  /// The selected entry, "" when none is.
  [[nodiscard]] std::wstring Text() const;

  Event<> Click;
  Event<> DblClick;

  /// What the event under way comes from; None for what the program does itself.
  [[nodiscard]] ListInput Input() const { return input_; }
  /// Whether the user can walk to an entry. What can't be walked to may still be chosen.
  [[nodiscard]] virtual bool Ready(int /*index*/) const { return true; }

  // The user's doings, reported by the back end.

  void InputSelect(int index, ListInput how = ListInput::Click);
  /// Walks to an entry, or to the nearest one that is ready: beyond it, or else before it. An index beyond the ends
  /// is taken as the end's.
  void InputWalk(int index);
  void InputDblClick() override;
  void InputEnter();

 protected:
  using Control::Control;

  /// Puts other entries in the place of all, with none selected. Raises nothing.
  void ReplaceEntries(std::vector<std::wstring> entries);
  /// An entry was selected, by the user or the program.
  virtual void EntrySelected() { Click(); }
  /// What a double click, or Enter on an entry, does beyond telling it.
  virtual void EntryChosen() {}
  /// What Enter does before it counts as a double click.
  virtual void EnterPressed() {}

  std::vector<std::wstring> list_;
  int listIndex_ = -1;

 private:
  void ChooseEntry();

  ListInput input_ = ListInput::None;
  bool walked_ = false;  // to the selected entry, which has not been clicked on
};

/// A list that shows its chosen entry, and the others when it is dropped down.
class DropDownList : public ListControl {
 public:
  /// Whether the arrows in the dropped list only show the way, so that Enter or a click chooses.
  [[nodiscard]] virtual bool ChoosesAtEnd() const { return false; }
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;

 protected:
  using ListControl::ListControl;
};

/// A list that shows its entries at once. Enter does what a double click does.
class OpenList : public ListControl {
 public:
  /// How many steps entry `index` stands in.
  [[nodiscard]] virtual int LevelOf(int /*index*/) const { return 0; }

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  void InputCharacter(wchar_t character) override;

 protected:
  using ListControl::ListControl;
};

/// A drop-down list whose entries the program adds, renames and removes. It is not sorted.
class ComboBox : public DropDownList {
 public:
  template <class Parent>
  ComboBox(Parent& parent, std::wstring_view name) : DropDownList(parent, name) {
    SetBackColor(Color::WindowBackground);
    SetForeColor(Color::WindowText);
  }

  /// Appends an entry; the selection stays.
  void AddItem(std::wstring_view text);
  void Reserve(int count) { list_.reserve(static_cast<std::size_t>(count)); }
  /// Replaces the text of one entry; the selection stays. Throws std::out_of_range.
  void SetList(int index, std::wstring_view text);
  /// Removes an entry. The selection stays on its entry, and is none when that entry goes. Raises nothing.
  /// Throws std::out_of_range.
  void RemoveItem(int index);
  void Clear() { ReplaceEntries({}); }
};

/// Entries that the program gives; a double click or Enter chooses one.
class ListBox : public OpenList {
 public:
  template <class Parent>
  ListBox(Parent& parent, std::wstring_view name) : OpenList(parent, name) {
    SetBackColor(Color::WindowBackground);
    SetForeColor(Color::WindowText);
  }

  /// Puts other entries in the place of all, with none selected. Raises nothing.
  void SetEntries(std::vector<std::wstring> entries) { ReplaceEntries(std::move(entries)); }
};

}  // namespace vantor::form
