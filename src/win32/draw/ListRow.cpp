#include "win32/draw/ListRow.h"

#include <cmath>
#include <string>

#include "text/DirectionMarks.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

namespace {

/// Shortens a web address that is too wide by leaving out a part after the host. Other texts are unchanged.
std::wstring ShortAddress(const std::wstring& text, HFONT font, int room) {
  const std::size_t scheme = text.find(L"://");
  const std::size_t host = scheme != std::wstring::npos ? text.find(L'/', scheme + 3) : std::wstring::npos;
  if (host == std::wstring::npos || TextSize(text, font).cx <= room) return text;
  const std::wstring head = text.substr(0, host + 1) + L"\u2026";
  const int left = room - TextSize(head, font).cx;
  std::size_t fits = 0;  // characters of the end
  for (std::size_t most = text.size() - host - 1; fits < most;) {
    const std::size_t middle = (fits + most + 1) / 2;
    if (TextSize(std::wstring_view(text).substr(text.size() - middle), font).cx <= left) {
      fits = middle;
    } else {
      most = middle - 1;
    }
  }
  return fits > 0 ? head + text.substr(text.size() - fits) : text;
}

}  // namespace

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
  DrawPlainText(item.hDC, ShortAddress(text::WithSignsForMarks(row.Text), font, area.right - area.left), area, font,
                color, DT_SINGLELINE | DT_VCENTER | static_cast<UINT>(isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS));
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    SetTextColor(item.hDC, RGB(0, 0, 0));
    SetBkColor(item.hDC, RGB(255, 255, 255));
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

}  // namespace vantor::win32
