#pragma once

#include <windows.h>

#include <string_view>

#include "form/Geometry.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

/// One row of a list.
struct ListRow {
  std::wstring_view Text;
  int Indent = 0;  // pixels
  bool Enabled = true;
  form::Color TextColor = form::Color::WindowText;
};

/// The height of a row in pixels, for a font.
[[nodiscard]] int RowHeight(HFONT font, double scale);
/// The room that a row's text leaves free at each side.
[[nodiscard]] int RowMargin(double scale);
/// Draws a row in the state that the system says. A text that is too long is cut with an ellipsis, a path's in its
/// middle.
void DrawRow(const DRAWITEMSTRUCT& item, const ListRow& row, COLORREF background, HFONT font, const Theme& theme,
             double scale);

}  // namespace vantor::win32
