#pragma once

#include <vector>

#include "form/RowList.h"
#include "win32/draw/Rows.h"
#include "win32/window/AccessibleState.h"
#include "win32/window/PaintedWindow.h"
#include "win32/window/Wheel.h"

namespace vantor::win32 {

/// A list of drawn rows. It remembers the rows that it shows, so that only changed rows are painted.
class RowListWindow final : public PaintedWindow {
 public:
  RowListWindow(FormWindow& owner, form::RowList& list);

  void Refresh() override;
  void Describe(AccessibleState& state) const override;
  [[nodiscard]] long PartCount() const override { return list_.RowCount(); }
  [[nodiscard]] long SelectedPart() const override { return list_.CurrentRow() + 1; }
  [[nodiscard]] AccessibleState DescribePart(long part) const override;
  [[nodiscard]] RECT PartArea(long part) const override;
  void ActOnPart(long part) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  void ApplyBounds() override;
  void PaintOn(HDC dc) override;

 private:
  struct ShownRow {
    form::Row Row;
    RowState State = RowState::Plain;

    friend bool operator==(const ShownRow&, const ShownRow&) = default;
  };

  /// Asks for the visible rows.
  void Update();
  void UpdateScrollBar();
  /// The area of a visible row, counted from the top.
  [[nodiscard]] RECT AreaOf(int place) const;
  /// The row under a point of the window; -1 for none.
  [[nodiscard]] int RowAt(LPARAM point) const;
  void SayCurrent();
  /// Makes readers go back to what has the focus.
  void SayFocus();
  void OnMove(LPARAM point);
  void SetHot(int row);
  void OnRelease(LPARAM point);
  void OnScroll(WORD what);

  form::RowList& list_;
  std::vector<ShownRow> shown_;
  Wheel wheel_;
  int hot_ = -1;     // the row that the mouse is over
  POINT stillAt_{};  // where the mouse was on the screen when the rows appeared
  int width_ = 0;
  bool pressed_ = false;
  int pressedRow_ = -1;
  bool said_ = false;  // readers are at a row
};

}  // namespace vantor::win32
