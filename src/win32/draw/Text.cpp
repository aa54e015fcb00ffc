#include "win32/draw/Text.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "win32/base/Handle.h"

namespace vantor::win32 {

// Texts are measured on a context of their own, as wide as on the screen's. For the screen's own context Windows has to
// find out which parts of the desktop are visible, and a start measures dozens of texts.

SIZE TextSize(std::wstring_view text, HFONT font) {
  const MemoryDcHandle dc(CreateCompatibleDC(nullptr));
  const Selected selected(dc.Get(), font);
  RECT area{};
  DrawTextW(dc.Get(), text.data(), static_cast<int>(text.size()), &area, DT_CALCRECT | DT_NOPREFIX);
  return {area.right, area.bottom};
}

int TextHeight(HFONT font) {
  const MemoryDcHandle dc(CreateCompatibleDC(nullptr));
  const Selected selected(dc.Get(), font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.Get(), &metrics);
  return metrics.tmHeight;
}

void DrawPlainText(HDC dc, std::wstring_view text, RECT area, HFONT font, COLORREF color, UINT format) {
  if (text.empty()) return;
  const Selected selected(dc, font);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, color);
  DrawTextW(dc, text.data(), static_cast<int>(text.size()), &area, format | DT_NOPREFIX);
}

void DrawPlaced(HDC dc, int x, int y, std::wstring_view text) {
  const bool placed = std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < 0x0590; });
  const auto length = static_cast<int>(text.size());
  std::vector<int> widths(text.size() + 1);
  SIZE size{};
  GetTextExtentExPointW(dc, text.data(), length, 0, nullptr, widths.data(), &size);
  std::adjacent_difference(widths.begin(), widths.end(), widths.begin());
  ExtTextOutW(dc, x, y, 0, nullptr, text.data(), static_cast<UINT>(length), placed ? widths.data() : nullptr);
}

}  // namespace vantor::win32
