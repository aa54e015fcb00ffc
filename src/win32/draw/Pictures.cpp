#include "win32/draw/Pictures.h"

#include <algorithm>
#include <cmath>

namespace vantor::win32 {

namespace {

using form::Picture;

/// The product's mark: a V whose right arm throws a ball.
void DrawMark(Canvas& canvas, const Box& box, const Palette& colors) {
  const Box square = box.Square();
  const COLORREF paper = colors.HighContrast ? colors.Normal.Fill : RGB(255, 255, 255);
  canvas.RoundedBox(square, square.Width * 0.22, colors.Deep);
  canvas.Polygon({square.At(0.14, 0.26), square.At(0.31, 0.26), square.At(0.47, 0.64), square.At(0.58, 0.38),
                  square.At(0.74, 0.38), square.At(0.54, 0.84), square.At(0.40, 0.84)},
                 paper);
  canvas.Disc(square.At(0.745, 0.225), square.Width * 0.105, colors.Accent);
}

/// The side band of a message: the accent, deepening to its foot, with the product's mark at its head.
void DrawMessageGround(Canvas& canvas, const Box& box, const Palette& colors, double scale) {
  canvas.Shade(box, colors.Accent, colors.AccentFoot);
  const double side = std::min({box.Width * 0.56, box.Height * 0.56, 32 * scale});
  const double margin = std::max(std::min((box.Width - side) / 2, 15 * scale), 0.0);
  DrawMark(canvas, {std::round(box.Left + margin), std::round(box.Top + margin), side, side}, colors);
}

}  // namespace

void DrawFace(Canvas& canvas, const Box& box, const Palette& colors, const Palette::Face& face, bool focused,
              double scale) {
  const double line = std::max(std::floor(scale), 1.0);
  const double radius = 3 * scale;
  if (focused) {
    canvas.EdgedBox(box, radius, 2 * line, colors.Focus, face.Fill);
  } else {
    canvas.EdgedBox(box, radius, line, face.Edge, face.Fill);
  }
}

void DrawGlyph(Canvas& canvas, Picture picture, const Box& box, COLORREF color, double scale) {
  const double side = std::min({box.Width * 0.5, box.Height * 0.5, 11 * scale});
  const Box area = Box{box.Left + (box.Width - side) / 2, box.Top + (box.Height - side) / 2, side, side};
  const double thick = std::max(1.6 * scale, side * 0.14);
  switch (picture) {
    case Picture::FaceUnfold:
      canvas.Line({area.At(0.12, 0.1), area.At(0.52, 0.5), area.At(0.12, 0.9)}, thick, color);
      canvas.Line({area.At(0.55, 0.1), area.At(0.95, 0.5), area.At(0.55, 0.9)}, thick, color);
      break;
    case Picture::FaceFold:
      canvas.Line({area.At(0.45, 0.1), area.At(0.05, 0.5), area.At(0.45, 0.9)}, thick, color);
      canvas.Line({area.At(0.88, 0.1), area.At(0.48, 0.5), area.At(0.88, 0.9)}, thick, color);
      break;
    case Picture::FaceMinimize:
      canvas.Line({area.At(0.08, 0.82), area.At(0.92, 0.82)}, thick, color);
      break;
    case Picture::FaceExit:
      canvas.Line({area.At(0.1, 0.1), area.At(0.9, 0.9)}, thick, color);
      canvas.Line({area.At(0.9, 0.1), area.At(0.1, 0.9)}, thick, color);
      break;
    default:
      break;
  }
}

void DrawPicture(Canvas& canvas, Picture picture, const Box& box, const Palette& colors, double scale) {
  switch (picture) {
    case Picture::Launcher:
      DrawMark(canvas, box, colors);
      break;
    case Picture::MessageBackground:
      DrawMessageGround(canvas, box, colors, scale);
      break;
    default:  // a button's
      break;
  }
}

}  // namespace vantor::win32
