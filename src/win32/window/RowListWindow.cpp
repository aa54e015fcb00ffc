#include "win32/window/RowListWindow.h"

#include <windowsx.h>

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "win32/draw/Screens.h"

namespace vantor::win32 {

/// Starts a row for a screen reader, after the reader has its answer.
constexpr UINT StartRowMessage = WM_APP + 1;

RowListWindow::RowListWindow(FormWindow& owner, form::RowList& list)
    : PaintedWindow(owner, list, {L"STATIC", SS_NOTIFY | WS_VSCROLL, {}, true}), list_(list) {}

void RowListWindow::Refresh() {
  ControlWindow::Refresh();
  Update();
  Redraw();
}

void RowListWindow::Show(form::Property property) {
  if (property == form::Property::List) {
    // A resting mouse does not point at rows that appear under it.
    hot_ = -1;
    GetCursorPos(&stillAt_);
    if (said_) SayFocus();
  }
  Update();
  if (property == form::Property::ListIndex) SayCurrent();
}

void RowListWindow::ApplyBounds() {
  ControlWindow::ApplyBounds();
  Update();
}

void RowListWindow::Update() {
  std::vector<ShownRow> rows;
  const int count = list_.RowCount();
  const int end = std::min(list_.TopRow() + list_.PageRows(), count);
  for (int row = list_.TopRow(); row < end; ++row) {
    const RowState state = row == list_.CurrentRow() ? RowState::Current
                           : row == hot_             ? RowState::Hot
                                                     : RowState::Plain;
    rows.push_back({list_.RowAt(row), state});
  }
  for (std::size_t i = 0; i < std::max(rows.size(), shown_.size()); ++i) {
    if (i < rows.size() && i < shown_.size() && rows[i] == shown_[i]) continue;
    const RECT area = AreaOf(static_cast<int>(i));
    InvalidateRect(Hwnd(), &area, FALSE);
  }
  shown_ = std::move(rows);
  UpdateScrollBar();
}

void RowListWindow::UpdateScrollBar() {
  SCROLLINFO wanted{sizeof wanted,
                    SIF_RANGE | SIF_PAGE | SIF_POS,
                    0,
                    std::max(list_.RowCount() - 1, 0),
                    static_cast<UINT>(list_.PageRows()),
                    list_.TopRow(),
                    0};
  SCROLLINFO shown{sizeof shown, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 0, 0, 0, 0};
  GetScrollInfo(Hwnd(), SB_VERT, &shown);
  const bool same = shown.nMax == wanted.nMax && shown.nPage == wanted.nPage && shown.nPos == wanted.nPos;
  if (!same) SetScrollInfo(Hwnd(), SB_VERT, &wanted, TRUE);
}

RECT RowListWindow::AreaOf(int place) const {
  const int dpi = Owner().Dpi();
  return {0, Screens::ToPixels(place * list_.RowHeight(), dpi), ClientSize().cx,
          Screens::ToPixels((place + 1) * list_.RowHeight(), dpi)};
}

int RowListWindow::RowAt(LPARAM point) const {
  const POINT at{GET_X_LPARAM(point), GET_Y_LPARAM(point)};
  for (int place = 0; place < static_cast<int>(shown_.size()); ++place) {
    const RECT area = AreaOf(place);
    if (PtInRect(&area, at) != FALSE) return list_.TopRow() + place;
  }
  return -1;
}

void RowListWindow::PaintOn(HDC dc) {
  const COLORREF background = BackgroundColor();
  for (int place = 0; place < static_cast<int>(shown_.size()); ++place) {
    const RECT area = AreaOf(place);
    if (RectVisible(dc, &area) == FALSE || area.right <= 0) continue;
    const ShownRow& row = shown_[static_cast<std::size_t>(place)];
    Canvas canvas(area.right, area.bottom - area.top);
    DrawMarkedRow(canvas, row.Row, row.State, background, Theme().TextColor(list_.ForeColor(), true, background),
                  Theme(), Owner().Dpi());
    canvas.Show(dc, 0, area.top);
  }
  const SIZE size = ClientSize();
  const RECT rest{0, AreaOf(static_cast<int>(shown_.size())).top, size.cx, size.cy};
  FillRect(dc, &rest, Theme().Brush(background));
}

/// Makes readers follow the current row, while the focus stays with the line.
void RowListWindow::SayCurrent() {
  const int row = list_.CurrentRow();
  if (row == -1) return SayFocus();
  said_ = true;
  NotifyWinEvent(EVENT_OBJECT_FOCUS, Hwnd(), OBJID_CLIENT, row + 1);
  NotifyWinEvent(EVENT_OBJECT_SELECTION, Hwnd(), OBJID_CLIENT, row + 1);
}

void RowListWindow::SayFocus() {
  said_ = false;
  NotifyWinEvent(EVENT_OBJECT_FOCUS, GetFocus(), OBJID_CLIENT, CHILDID_SELF);
}

void RowListWindow::Describe(AccessibleState& state) const { state.Role = ROLE_SYSTEM_LIST; }

AccessibleState RowListWindow::DescribePart(long part) const {
  const int row = static_cast<int>(part) - 1;
  AccessibleState state;
  state.Role = ROLE_SYSTEM_LISTITEM;
  state.State = STATE_SYSTEM_SELECTABLE;
  state.Name = list_.SpokenRow(row);
  state.Description = list_.RowAt(row).Detail;
  state.Action = L"Start";
  if (row == list_.CurrentRow()) state.State |= STATE_SYSTEM_SELECTED;
  if (row < list_.TopRow() || row >= list_.TopRow() + list_.PageRows()) state.State |= STATE_SYSTEM_OFFSCREEN;
  return state;
}

RECT RowListWindow::PartArea(long part) const { return AreaOf(static_cast<int>(part) - 1 - list_.TopRow()); }

void RowListWindow::ActOnPart(long part) { PostMessageW(Hwnd(), StartRowMessage, static_cast<WPARAM>(part) - 1, 0); }

void RowListWindow::SetHot(int row) {
  if (hot_ == row) return;
  hot_ = row;
  Update();
}

void RowListWindow::OnMove(LPARAM point) {
  POINT now;
  GetCursorPos(&now);
  if (now.x == stillAt_.x && now.y == stillAt_.y) return;
  stillAt_ = {-1, -1};
  TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, Hwnd(), 0};
  TrackMouseEvent(&track);
  const int row = RowAt(point);
  SetHot(pressed_ && row != pressedRow_ ? -1 : row);
}

void RowListWindow::OnRelease(LPARAM point) {
  if (!pressed_) return;
  const int row = pressedRow_;
  ReleaseCapture();
  if (row != -1 && RowAt(point) == row) list_.InputRowClick(row);
}

void RowListWindow::OnScroll(WORD what) {
  SCROLLINFO info{sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
  const int top = list_.TopRow();
  switch (what) {
    case SB_LINEUP:
      return list_.InputScroll(top - 1);
    case SB_LINEDOWN:
      return list_.InputScroll(top + 1);
    case SB_PAGEUP:
      return list_.InputScroll(top - list_.PageRows());
    case SB_PAGEDOWN:
      return list_.InputScroll(top + list_.PageRows());
    case SB_TOP:
      return list_.InputScroll(0);
    case SB_BOTTOM:
      return list_.InputScroll(list_.RowCount());
    case SB_THUMBTRACK:
      GetScrollInfo(Hwnd(), SB_VERT, &info);
      return list_.InputScroll(info.nTrackPos);
    default:
      return;
  }
}

LRESULT RowListWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      // The texts are cut off at another place.
      if (std::exchange(width_, LOWORD(lParam)) != LOWORD(lParam)) Redraw();
      break;
    case WM_NCHITTEST:
      return DefWindowProcW(Hwnd(), message, wParam, lParam);  // the class would not see the scroll bar
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      pressed_ = true;
      pressedRow_ = RowAt(lParam);
      SetCapture(Hwnd());
      return 0;
    case WM_LBUTTONUP:
      OnRelease(lParam);
      return 0;
    case WM_CAPTURECHANGED:
      pressed_ = false;
      return 0;
    case WM_MOUSEMOVE:
      OnMove(lParam);
      return 0;
    case WM_MOUSELEAVE:
      SetHot(-1);
      return 0;
    case WM_MOUSEWHEEL:
      list_.InputScroll(list_.TopRow() + wheel_.Rows(wParam, list_.PageRows()));
      return 0;
    case StartRowMessage:
      list_.InputRowClick(static_cast<int>(wParam));
      return 0;
    case WM_VSCROLL:
      OnScroll(LOWORD(wParam));
      return 0;
    default:
      break;
  }
  return PaintedWindow::OnMessage(message, wParam, lParam);
}

}  // namespace vantor::win32
