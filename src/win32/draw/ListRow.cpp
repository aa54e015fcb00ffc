#include "win32/draw/ListRow.h"

#include <cmath>

#include "text/DirectionMarks.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

int RowHeight(HFONT font, double scale) { return TextHeight(font) + static_cast<int>(std::lround(3 * scale)); }

int RowMargin(double scale) { return static_cast<int>(std::lround(4 * scale)); }

void DrawRow(const DRAWITEMSTRUCT& item, const ListRow& row, COLORREF background, HFONT font, const Theme& theme,
             double scale) {
  const Palette& colors = theme.Colors();
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  COLORREF color = theme.TextColor(row.TextColor, row.Enabled, background);
  if (selected && row.Enabled) {
    background = colors.Open.Fill;
    color = colors.Open.Text;
  }
  FillRect(item.hDC, &item.rcItem, theme.Brush(background));
  const bool isPath = row.Text.find(L'\\') != std::wstring_view::npos;
  RECT area = item.rcItem;
  InflateRect(&area, -RowMargin(scale), 0);
  area.left += row.Indent;
  DrawPlainText(item.hDC, text::WithSignsForMarks(row.Text), area, font, color,
                DT_SINGLELINE | DT_VCENTER | static_cast<UINT>(isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS));
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    SetTextColor(item.hDC, RGB(0, 0, 0));
    SetBkColor(item.hDC, RGB(255, 255, 255));
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

}  // namespace vantor::win32
