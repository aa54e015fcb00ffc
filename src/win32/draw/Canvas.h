#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "win32/base/Handle.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

struct Point {
  double X = 0;
  double Y = 0;
};

/// A box in pixels, possibly fractional.
struct Box {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;

  /// An area relative to the point `from`.
  [[nodiscard]] static Box Of(const RECT& area, POINT from = {}) {
    return {double(area.left - from.x), double(area.top - from.y), double(area.right - area.left),
            double(area.bottom - area.top)};
  }
  [[nodiscard]] Box Inset(double by) const { return {Left + by, Top + by, Width - 2 * by, Height - 2 * by}; }
  /// The largest square in the middle.
  [[nodiscard]] Box Square() const;
};

/// The outlines of areas, each closed by a line from its last point to its first.
using Outlines = std::vector<std::vector<Point>>;

/// A picture in memory, drawn with smooth edges and then shown at once, so that nothing flickers.
class Canvas {
 public:
  /// Size in pixels, at least 1 by 1. Throws std::bad_alloc if the system has no memory for it.
  Canvas(int width, int height);
  /// For drawing into the picture by system calls.
  [[nodiscard]] HDC Dc() const { return dc_.Get(); }
  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Box Whole() const { return {0, 0, double(width_), double(height_)}; }

  void Clear(COLORREF color);
  /// Fills a box with a vertical gradient.
  void Shade(const Box& box, COLORREF top, COLORREF bottom);
  /// Fills the inside of the outlines. Outlines with the same orientation that overlap form one area.
  void Fill(const Outlines& outlines, COLORREF color);
  void RoundedBox(const Box& box, double radius, COLORREF color);
  /// A box with an edge of the given thickness inside it.
  void EdgedBox(const Box& box, double radius, double thickness, COLORREF edge, COLORREF fill);
  /// Draws a line through the points, with round corners and ends.
  void Line(const std::vector<Point>& points, double thickness, COLORREF color);
  /// Draws text as DrawText does; ampersands are ordinary characters.
  void Text(std::wstring_view text, RECT area, HFONT font, COLORREF color, UINT format);

  /// Copies the picture to (x, y).
  void Show(HDC target, int x = 0, int y = 0) const;

 private:
  void Blend(int x, int y, double share, COLORREF color);

  int width_;
  int height_;
  MemoryDcHandle dc_;
  BitmapHandle bitmap_;
  std::optional<Selected> selected_;
  std::uint32_t* pixels_ = nullptr;  // 0x00RRGGBB, top row first
};

}  // namespace vantor::win32
