#pragma once

#include "form/Picture.h"
#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

// `scale` is the number of pixels that stand for one at 96 dots per inch.

/// Draws a picture that is not on a button into a box.
void DrawPicture(Canvas& canvas, const form::Picture& picture, const Box& box, const Palette& colors, double scale);

/// Draws the background of a button: its edge, its fill and, with the focus, a ring inside.
void DrawFace(Canvas& canvas, const Box& box, const Palette& colors, const Palette::Face& face, bool focused,
              double scale);

/// Draws the background of a text box; with the focus its edge is thicker at the bottom.
void DrawField(Canvas& canvas, const Box& box, COLORREF edge, COLORREF fill, bool focused, double scale);

/// Draws lines and areas into the largest square in the middle of a box. All lines have one thickness, which depends
/// only on the scale, and horizontal and vertical ones are aligned to pixels.
void DrawShapes(Canvas& canvas, form::Drawing drawing, const Box& box, const Palette& colors, COLORREF color,
                double scale);

}  // namespace vantor::win32
