#pragma once

#include <windows.h>

#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

// The outline of a window without a title bar. `scale` is the number of pixels that stand for one at 96 dots per inch.

/// The thickness of all edges, in whole pixels.
[[nodiscard]] double EdgeThickness(double scale);

/// Gives a window rounded corners for its size: by the desktop's compositor if it supports that (Windows 11), otherwise
/// by cutting them off.
void RoundCorners(HWND window, const Palette& colors, double scale);

/// Draws the edge and the inside of a window, of which the canvas may show only a part. Leaves the canvas unchanged if
/// it is not at the edge.
void DrawWindowEdge(Canvas& canvas, const Box& window, const Palette& colors, COLORREF background, double scale);

/// The same for all of a window of this size, on the screen.
void PaintWindow(HDC dc, SIZE size, const Theme& theme, COLORREF background, double scale);

}  // namespace vantor::win32
