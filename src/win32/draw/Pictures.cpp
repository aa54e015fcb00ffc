#include "win32/draw/Pictures.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "win32/draw/Path.h"
#include "win32/draw/WindowEdge.h"

namespace vantor::win32 {

namespace {

constexpr double FaceRadius = 4;  // pixels at 96 dots per inch

/// The thickness of a picture's lines: about 1.5 pixels at 96 dots per inch, in steps of half a pixel.
double LineThickness(double scale) { return std::max(std::floor(3 * scale + 0.25) / 2, 1.0); }

COLORREF FillOf(form::Color color, const Palette& colors) {
  if (!colors.HighContrast) return static_cast<COLORREF>(color);
  return color == form::Color::MarkBlue ? colors.Normal.Text : colors.Normal.Fill;
}

/// Moves the centre of a line so that its left or upper edge is on a pixel boundary.
double OnPixels(double middle, double thickness) { return std::round(middle - thickness / 2) + thickness / 2; }

/// Draws the side band of a message: the accent colour, darker towards the bottom, with the drawing at the top.
void DrawBand(Canvas& canvas, const form::Picture& picture, const Box& box, const Palette& colors, double scale) {
  canvas.Shade(box, colors.Accent, colors.AccentFoot);
  const double side = std::round(std::min({box.Width * 0.6, box.Height * 0.6, 32 * scale}));
  const double margin = std::max(std::min((box.Width - side) / 2, 15 * scale), 0.0);
  DrawShapes(canvas, picture.Drawing, {std::round(box.Left + margin), std::round(box.Top + margin), side, side}, colors,
             colors.Normal.Text, scale);
}

}  // namespace

void DrawFace(Canvas& canvas, const Box& box, const Palette& colors, const Palette::Face& face, bool focused,
              double scale) {
  const double line = EdgeThickness(scale);
  const double radius = FaceRadius * scale;
  if (focused) {
    canvas.EdgedBox(box, radius, 2 * line, colors.Focus, face.Fill);
  } else {
    canvas.EdgedBox(box, radius, line, face.Edge, face.Fill);
  }
}

void DrawField(Canvas& canvas, const Box& box, COLORREF edge, COLORREF fill, bool focused, double scale) {
  const double line = EdgeThickness(scale);
  const double radius = FaceRadius * scale;
  canvas.RoundedBox(box, radius, edge);
  Box inside = box.Inset(line);
  if (focused) inside.Height -= line;
  canvas.RoundedBox(inside, radius - line, fill);
}

void DrawShapes(Canvas& canvas, form::Drawing drawing, const Box& box, const Palette& colors, COLORREF color,
                double scale) {
  const Box square = box.Square();
  const double thickness = LineThickness(scale);
  for (const form::Shape& shape : drawing) {
    std::vector<Stretch> stretches = ReadPath(shape.Path, square);
    if (shape.Fill) {
      Outlines outlines;
      for (Stretch& stretch : stretches) {
        if (!stretch.Curved) {
          for (Point& point : stretch.Points) point.Y = OnPixels(point.Y, 0);
        }
        outlines.push_back(std::move(stretch.Points));
      }
      canvas.Fill(outlines, FillOf(*shape.Fill, colors));
      continue;
    }
    for (Stretch& stretch : stretches) {
      if (!stretch.Curved) {
        for (Point& point : stretch.Points) point = {OnPixels(point.X, thickness), OnPixels(point.Y, thickness)};
      }
      if (stretch.Closed) stretch.Points.emplace_back(stretch.Points.front());
      canvas.Line(stretch.Points, thickness, color);
    }
  }
}

void DrawPicture(Canvas& canvas, const form::Picture& picture, const Box& box, const Palette& colors, double scale) {
  if (picture.Background == form::Background::Band) return DrawBand(canvas, picture, box, colors, scale);
  DrawShapes(canvas, picture.Drawing, box, colors, colors.Normal.Text, scale);
}

}  // namespace vantor::win32
