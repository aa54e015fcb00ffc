#pragma once

#include "form/Picture.h"
#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

/// Draws a picture that stands by itself into a box. `scale` is the number of pixels that stand for one at 96 dots per
/// inch.
void DrawPicture(Canvas& canvas, form::Picture picture, const Box& box, const Palette& colors, double scale);

/// Draws the ground of a button: its edge, its fill and, with the focus, a ring inside.
void DrawFace(Canvas& canvas, const Box& box, const Palette& colors, const Palette::Face& face, bool focused,
              double scale);

/// The drawing on a button's ground (fold, minimize, …). Draws nothing for the pictures that are grounds.
void DrawGlyph(Canvas& canvas, form::Picture picture, const Box& box, COLORREF color, double scale);

}  // namespace vantor::win32
