#pragma once

#include <string>
#include <string_view>

#include "form/Control.h"

namespace vantor::form {

/// One row of a RowList.
struct Row {
  std::wstring Text;
  std::size_t MarkStart = 0;  // the part of the text that is marked
  std::size_t MarkLength = 0;
  std::wstring Detail;  // beside the text, small and grey

  friend bool operator==(const Row&, const Row&) = default;
};

/// Provides the rows of a RowList.
class RowSource {
 public:
  [[nodiscard]] virtual int RowCount() const = 0;
  /// `index` is 0 to RowCount() - 1.
  [[nodiscard]] virtual Row RowAt(int index) const = 0;

 protected:
  ~RowSource() = default;  // nobody owns one by this type
};

/// A list that asks for its rows only when they become visible, so that their number costs nothing. It never has the
/// focus: the program says which row is the current one. It shows as many rows as fit its height, and the rest by
/// scrolling.
class RowList : public Control {
 public:
  /// Keeps the source by reference.
  template <class Parent>
  RowList(Parent& parent, std::wstring_view name, const RowSource& source) : Control(parent, name), source_(source) {
    UseWindowColors();
  }

  [[nodiscard]] bool IsFocusable() const override { return false; }
  [[nodiscard]] int RowCount() const { return source_.RowCount(); }
  [[nodiscard]] Row RowAt(int index) const { return source_.RowAt(index); }
  /// What a screen reader says for a row: its text, its number and the number of rows.
  [[nodiscard]] std::wstring SpokenRow(int index) const;
  /// The source has new rows: shows them from the first one, with `current` as the current one.
  void ShowRows(int current);

  /// -1: none.
  [[nodiscard]] int CurrentRow() const { return currentRow_; }
  /// Scrolls only as far as needed to show the row.
  void SetCurrentRow(int row);

  [[nodiscard]] Twips RowHeight() const { return rowHeight_; }
  void SetRowHeight(Twips height) { rowHeight_ = height; }  // before the form is shown
  /// The number of rows visible at once; at least 1.
  [[nodiscard]] int PageRows() const;
  /// The first visible row.
  [[nodiscard]] int TopRow() const { return topRow_; }
  /// Stops at the first and the last page.
  void ScrollTo(int topRow);

  /// The mouse button was pressed and released over the same row.
  Event<int /*row*/> Click;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  // What the user does, as reported by the back end.

  void InputRowClick(int row);
  void InputScroll(int topRow);

 private:
  const RowSource& source_;
  Twips rowHeight_ = 300;
  int currentRow_ = -1;
  int topRow_ = 0;
};

}  // namespace vantor::form
