#pragma once

#include <windows.h>

#include <string_view>

#include "form/Geometry.h"
#include "form/RowList.h"
#include "win32/draw/Canvas.h"
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
/// The margin at each side of a row's text.
[[nodiscard]] int RowMargin(double scale);
/// Draws a row in the state given by the system. A text that is too long is shortened with an ellipsis, a path or an
/// address in the middle.
void DrawRow(const DRAWITEMSTRUCT& item, const ListRow& row, COLORREF background, HFONT font, const Theme& theme,
             double scale);

/// How a row of what matches the line is highlighted.
enum class RowState { Plain, Hot, Current };

/// Draws a row over the whole canvas: its text with a line under the marked part, and the detail after it, smaller and
/// fainter. Texts that are too long are shortened with an ellipsis, a path or an address in the middle.
void DrawMarkedRow(Canvas& canvas, const form::Row& row, RowState state, COLORREF background, COLORREF textColor,
                   const Theme& theme, int dpi);

}  // namespace vantor::win32
