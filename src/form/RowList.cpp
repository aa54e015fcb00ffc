#include "form/RowList.h"

#include <algorithm>

#include "text/Numbers.h"

namespace vantor::form {

std::wstring RowList::SpokenRow(int index) const {
  return RowAt(index).Text + L", " + text::Decimal(index + 1) + L" of " + text::Decimal(RowCount());
}

void RowList::ShowRows(int current) {
  topRow_ = 0;
  currentRow_ = current;
  NotifyWindow(Property::List);
}

void RowList::SetCurrentRow(int row) {
  currentRow_ = row;
  if (row >= 0) ScrollTo(std::clamp(topRow_, row - PageRows() + 1, row));
  NotifyWindow(Property::ListIndex);
}

int RowList::PageRows() const { return std::max(Height() / rowHeight_, 1); }

void RowList::ScrollTo(int topRow) {
  topRow = std::clamp(topRow, 0, std::max(RowCount() - PageRows(), 0));
  if (topRow == topRow_) return;
  topRow_ = topRow;
  NotifyWindow(Property::Scroll);
}

void RowList::InputRowClick(int row) {
  if (AcceptsInput() && row >= 0 && row < RowCount()) Click(row);
}

void RowList::InputScroll(int topRow) {
  if (AcceptsInput()) ScrollTo(topRow);
}

}  // namespace vantor::form
