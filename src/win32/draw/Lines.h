#pragma once

#include <windows.h>

#include <string_view>

#include "form/Geometry.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

/// One line of a list.
struct Line {
  std::wstring_view Text;
  int Indent = 0;  // pixels
  bool Enabled = true;
  form::Color Ink = form::Color::WindowText;
};

/// The height of a line in pixels, for a font.
[[nodiscard]] int LineHeight(HWND window, HFONT font, double scale);
/// The room that a line's text leaves free at each side.
[[nodiscard]] int LineMargin(double scale);
/// Draws a line in the state that the system says. A text that is too long is cut with an ellipsis, a path's in its
/// middle.
void DrawLine(const DRAWITEMSTRUCT& item, const Line& line, COLORREF ground, HFONT font, Theme& look, double scale);

}  // namespace vantor::win32
