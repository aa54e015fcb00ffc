#include "win32/draw/Theme.h"

#include <utility>

namespace vantor::win32 {

namespace {

bool HighContrastIsOn() {
  HIGHCONTRASTW settings{sizeof settings};
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof settings, &settings, 0) != FALSE &&
         (settings.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

Palette BluePalette() {
  Palette palette{};
  palette.HighContrast = false;
  palette.Normal = {RGB(246, 249, 255), RGB(106, 131, 210), RGB(24, 38, 92)};
  palette.Hot = {RGB(224, 234, 255), RGB(80, 108, 200), RGB(20, 34, 86)};
  palette.Pressed = {RGB(150, 176, 246), RGB(66, 96, 190), RGB(12, 24, 70)};
  palette.Open = {RGB(180, 200, 255), RGB(66, 96, 190), RGB(12, 24, 70)};
  palette.Disabled = {RGB(240, 241, 244), RGB(198, 203, 214), RGB(98, 103, 116)};
  palette.Outline = RGB(78, 103, 190);
  palette.Line = RGB(106, 131, 210);
  palette.Focus = RGB(44, 84, 200);
  palette.Accent = RGB(180, 200, 255);
  palette.AccentFoot = RGB(158, 182, 248);
  palette.Letter = RGB(40, 58, 136);
  palette.DisabledOnSilver = RGB(72, 76, 88);
  return palette;
}

Palette SystemPalette() {
  Palette palette{};
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const COLORREF text = GetSysColor(COLOR_BTNTEXT);
  const COLORREF gray = GetSysColor(COLOR_GRAYTEXT);
  const COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
  const COLORREF highlightText = GetSysColor(COLOR_HIGHLIGHTTEXT);
  palette.HighContrast = true;
  palette.Normal = {face, text, text};
  palette.Hot = {face, highlight, text};
  palette.Pressed = {highlight, text, highlightText};
  palette.Open = {highlight, text, highlightText};
  palette.Disabled = {face, gray, gray};
  palette.Line = GetSysColor(COLOR_WINDOWTEXT);
  palette.Focus = highlight;
  palette.Accent = highlight;
  palette.AccentFoot = highlight;
  palette.Outline = palette.Line;
  palette.Letter = text;
  palette.DisabledOnSilver = gray;
  return palette;
}

constexpr bool IsSystemColor(form::Color color) { return (static_cast<std::uint32_t>(color) & 0x80000000U) != 0; }

COLORREF Plain(form::Color color) {
  const auto value = static_cast<std::uint32_t>(color);
  return IsSystemColor(color) ? GetSysColor(static_cast<int>(value & 0xFFU)) : value & 0xFFFFFFU;
}

}  // namespace

void Theme::Forget() {
  palette_.reset();
  oldFonts_ = std::exchange(fonts_, {});
}

const Palette& Theme::Colors() const {
  if (!palette_) palette_ = HighContrastIsOn() ? SystemPalette() : BluePalette();
  return *palette_;
}

COLORREF Theme::Background(form::Color color) const {
  if (!Colors().HighContrast || IsSystemColor(color)) return Plain(color);
  return GetSysColor(color == form::Color::Silver ? COLOR_BTNFACE : COLOR_WINDOW);
}

COLORREF Theme::TextColor(form::Color color, bool enabled, COLORREF background) const {
  if (!enabled) return background == Plain(form::Color::Silver) ? Colors().DisabledOnSilver : Colors().Disabled.Text;
  if (!Colors().HighContrast || IsSystemColor(color)) return Plain(color);
  return GetSysColor(COLOR_WINDOWTEXT);
}

HBRUSH Theme::Brush(COLORREF color) const {
  for (const ColoredBrush& brush : brushes_) {
    if (brush.Color == color) return brush.Brush.Get();
  }
  brushes_.push_back({color, BrushHandle(CreateSolidBrush(color))});
  return brushes_.back().Brush.Get();
}

HFONT Theme::Font(int dpi, FontStyle style) const {
  for (const SizedFont& font : fonts_) {
    if (font.Dpi == dpi && font.Style == style) return font.Font.Get();
  }
  LOGFONTW description = screens_.MessageFont(dpi);
  if (style != FontStyle::Plain) description.lfWeight = FW_BOLD;
  if (style == FontStyle::Small) description.lfHeight = MulDiv(description.lfHeight, 3, 4);
  fonts_.push_back({dpi, style, FontHandle(CreateFontIndirectW(&description))});
  return fonts_.back().Font.Get();
}

}  // namespace vantor::win32
