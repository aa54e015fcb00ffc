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

/// Knows the rows of a RowList.
class RowSource {
 public:
  [[nodiscard]] virtual int RowCount() const = 0;
  /// Of 0 to RowCount() - 1.
  [[nodiscard]] virtual Row RowAt(int index) const = 0;

 protected:
  RowSource() = default;
  RowSource(const RowSource&) = default;
  RowSource& operator=(const RowSource&) = default;
  ~RowSource() = default;
};

/// A list whose rows are asked for only when they are to be seen, so that their number costs nothing. It never has the
/// focus: the program says which row is the current one. As many rows are seen as fit its height, the rest by
/// scrolling.
class RowList : public Control {
 public:
  /// Keeps the source by reference.
  template <class Parent>
  RowList(Parent& parent, std::wstring_view name, const RowSource& source) : Control(parent, name), source_(source) {
    TakeNoFocus();
    SetBackColor(Color::WindowBackground);
    SetForeColor(Color::WindowText);
  }

  [[nodiscard]] int RowCount() const { return source_.RowCount(); }
  [[nodiscard]] Row RowAt(int index) const { return source_.RowAt(index); }
  /// What a screen reader says of a row: its text, its number and how many there are.
  [[nodiscard]] std::wstring SpokenRow(int index) const;
  /// The source has other rows now: they are seen from the first one, with this one as the current one.
  void ShowRows(int current);

  /// -1: none.
  [[nodiscard]] int CurrentRow() const { return currentRow_; }
  /// Scrolls no further than brings the row into sight.
  void SetCurrentRow(int row);

  [[nodiscard]] Twips RowHeight() const { return rowHeight_; }
  void SetRowHeight(Twips height) { rowHeight_ = height; }  // before the form is shown
  /// How many rows are seen at once; at least 1.
  [[nodiscard]] int PageRows() const;
  /// The first row that is seen.
  [[nodiscard]] int TopRow() const { return topRow_; }
  /// As far as there are rows.
  void ScrollTo(int topRow);

  /// The mouse was pressed and let go over one row.
  Event<int /*row*/> Click;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

  // The user's doings, reported by the back end.

  void InputRowClick(int row);
  void InputScroll(int topRow);

 private:
  const RowSource& source_;
  Twips rowHeight_ = 300;
  int currentRow_ = -1;
  int topRow_ = 0;
};

}  // namespace vantor::form
