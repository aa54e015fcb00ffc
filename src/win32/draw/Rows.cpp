#include "win32/draw/Rows.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include "text/DirectionMarks.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

namespace {

// Pixels at 96 dots per inch.
constexpr int Margin = 6;
constexpr int DetailGap = 10;

/// The size of the detail relative to the text.
constexpr double SmallFont = 0.88;
/// How far the detail's colour is on the way from the text's to the background's.
constexpr double Faintness = 0.36;

COLORREF Mix(COLORREF textColor, COLORREF background, double share) {
  const auto mix = [&](int from, int to) { return static_cast<BYTE>(std::lround(from + (to - from) * share)); };
  return RGB(mix(GetRValue(textColor), GetRValue(background)), mix(GetGValue(textColor), GetGValue(background)),
             mix(GetBValue(textColor), GetBValue(background)));
}

/// A row's text, shortened to the space available, and the end of each character.
struct Measured {
  std::wstring Text;
  std::vector<int> Ends;  // pixels from the text's beginning
};

Measured Measure(HDC dc, const std::wstring& text, int room) {
  constexpr wchar_t Ellipsis = 0x2026;
  Measured measured{text, std::vector<int>(text.size() + 1)};
  int fit = 0;
  SIZE size{};
  GetTextExtentExPointW(dc, text.data(), static_cast<int>(text.size()), room, &fit, measured.Ends.data(), &size);
  if (size.cx > room) {
    SIZE dots{};
    GetTextExtentPoint32W(dc, &Ellipsis, 1, &dots);
    GetTextExtentExPointW(dc, text.data(), static_cast<int>(text.size()), std::max<int>(room - dots.cx, 0), &fit,
                          nullptr, &size);
    measured.Text = text.substr(0, static_cast<std::size_t>(fit)) + Ellipsis;
    GetTextExtentExPointW(dc, measured.Text.data(), fit + 1, INT_MAX, nullptr, measured.Ends.data(), &size);
  }
  measured.Ends.resize(measured.Text.size());
  return measured;
}

/// Draws the row's text with a line under its marked part.
void DrawMarked(Canvas& canvas, const form::Row& row, const RECT& area, HFONT font, COLORREF textColor, COLORREF mark,
                double scale) {
  const HDC dc = canvas.Dc();
  const Selected selected(dc, font);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, textColor);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  const Measured text = Measure(dc, row.Text, area.right - area.left);
  const int top = (canvas.Height() - metrics.tmHeight) / 2;
  DrawPlaced(dc, area.left, top, text.Text);
  const auto endOf = [&](std::size_t count) {
    return count == 0 || text.Ends.empty() ? 0 : text.Ends[std::min(count, text.Ends.size()) - 1];
  };
  const int from = endOf(row.MarkStart);
  const int to = endOf(row.MarkStart + row.MarkLength);
  const double thickness = std::max(std::floor(1.5 * scale), 1.0);
  const double line = std::min(top + metrics.tmAscent + thickness, canvas.Height() - thickness);
  canvas.Shade({double(area.left + from), line, double(to - from), thickness}, mark, mark);
}

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

/// The format of a text on one line, which is shortened with an ellipsis, a path in the middle.
UINT OneLine(std::wstring_view text) {
  const bool isPath = text.find(L'\\') != text.npos;
  return DT_SINGLELINE | DT_VCENTER | static_cast<UINT>(isPath ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS);
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
  RECT area = item.rcItem;
  InflateRect(&area, -RowMargin(scale), 0);
  area.left += row.Indent;
  DrawPlainText(item.hDC, ShortAddress(text::WithSignsForMarks(row.Text), font, area.right - area.left), area, font,
                color, OneLine(row.Text));
  if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
    SetTextColor(item.hDC, RGB(0, 0, 0));
    SetBkColor(item.hDC, RGB(255, 255, 255));
    DrawFocusRect(item.hDC, &item.rcItem);
  }
}

void DrawMarkedRow(Canvas& canvas, const form::Row& row, RowState state, COLORREF background, COLORREF textColor,
                   const Theme& theme, int dpi) {
  const Palette& colors = theme.Colors();
  const double scale = dpi / 96.0;
  COLORREF mark = colors.Focus;
  if (state != RowState::Plain) {
    const Palette::Face& face = state == RowState::Current ? colors.Open : colors.Hot;
    background = face.Fill;
    textColor = face.Text;
    mark = textColor;
    canvas.Clear(state == RowState::Hot ? face.Edge : background);
    if (state == RowState::Hot) {
      const double edge = std::max(std::floor(scale), 1.0);
      canvas.Shade(canvas.Whole().Inset(edge), background, background);
    }
  } else {
    canvas.Clear(background);
  }
  if (colors.HighContrast) mark = textColor;

  const HFONT font = theme.Font(dpi, FontStyle::Plain);
  const HFONT small = theme.Font(static_cast<int>(std::lround(dpi * SmallFont)), FontStyle::Plain);
  const LONG left = std::lround(Margin * scale);
  const LONG right = canvas.Width() - left;
  const LONG gap = std::lround(DetailGap * scale);
  const LONG textWidth = TextSize(row.Text, font).cx;
  const LONG detailWidth = row.Detail.empty() ? 0 : TextSize(row.Detail, small).cx + gap;
  // If both are too long, the text gets more than half of the width.
  const LONG room = std::max((right - left) * 3 / 5, right - left - detailWidth);
  const LONG textEnd = left + std::min(textWidth, room);
  DrawMarked(canvas, row, {left, 0, textEnd, canvas.Height()}, font, textColor, mark, scale);
  canvas.Text(ShortAddress(row.Detail, small, right - textEnd - gap), {textEnd + gap, 0, right, canvas.Height()}, small,
              colors.HighContrast ? textColor : Mix(textColor, background, Faintness), OneLine(row.Detail));
}

}  // namespace vantor::win32
