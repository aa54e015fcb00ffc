#include "win32/draw/Text.h"

namespace vantor::win32 {

SIZE TextSize(std::wstring_view text, HFONT font, int width) {
  const WindowDc screen(nullptr);
  const Selected selected(screen.Get(), font);
  RECT area{0, 0, width, 0};
  DrawTextW(screen.Get(), text.data(), static_cast<int>(text.size()), &area,
            DT_CALCRECT | DT_NOPREFIX | static_cast<UINT>(width > 0 ? DT_WORDBREAK : 0));
  return {area.right, area.bottom};
}

int TextHeight(HFONT font) {
  const WindowDc screen(nullptr);
  const Selected selected(screen.Get(), font);
  TEXTMETRICW metrics{};
  GetTextMetricsW(screen.Get(), &metrics);
  return metrics.tmHeight;
}

void DrawPlainText(HDC dc, std::wstring_view text, RECT area, HFONT font, COLORREF color, UINT format) {
  if (text.empty()) return;
  const Selected selected(dc, font);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, color);
  DrawTextW(dc, text.data(), static_cast<int>(text.size()), &area, format | DT_NOPREFIX);
}

}  // namespace vantor::win32
