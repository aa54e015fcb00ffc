#include "win32/draw/Lines.h"

#include <cmath>

#include "text/DirectionMarks.h"

namespace vantor::win32 {

int LineHeight(HWND window, HFONT font, double scale) {
  const HDC dc = GetDC(window);
  const HGDIOBJ oldFont = SelectObject(dc, font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, oldFont);
  ReleaseDC(window, dc);
  return metrics.tmHeight + static_cast<int>(std::lround(3 * scale));
}

int LineMargin(double scale) { return static_cast<int>(std::lround(4 * scale)); }

void DrawLine(const DRAWITEMSTRUCT& item, const Line& line, COLORREF ground, HFONT font, Theme& look, double scale) {
  const Palette& colors = look.Colors();
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  COLORREF ink = look.Ink(line.Ink, line.Enabled);
  if (selected && line.Enabled) {
    ground = colors.Open.Fill;
    ink = colors.Open.Ink;
  }
  FillRect(item.hDC, &item.rcItem, look.Brush(ground));
  const bool isPath = line.Text.find(L'\\') != std::wstring_view::npos;
  RECT area = item.rcItem;
  InflateRect(&area, -LineMargin(scale), 0);
  area.left += line.Indent;
  const HGDIOBJ oldFont = SelectObject(item.hDC, font);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, ink);
  const std::wstring text = text::WithSignsForMarks(line.Text);
  DrawTextW(item.hDC, text.data(), static_cast<int>(text.size()), &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | static_cast<UINT>(isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS));
  SelectObject(item.hDC, oldFont);
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    SetTextColor(item.hDC, RGB(0, 0, 0));
    SetBkColor(item.hDC, RGB(255, 255, 255));
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

}  // namespace vantor::win32
