#pragma once

#include <string_view>
#include <vector>

#include "win32/draw/Canvas.h"

namespace vantor::win32 {

/// One stretch of a path: points joined by straight lines.
struct Stretch {
  std::vector<Point> Points;
  bool Closed = false;
  bool Curved = false;  // some of its points stand for a curve
};

/// Reads path data (see form::Shape) into points of a box, whose sides stand for 16 units. What is not path data ends
/// the reading.
[[nodiscard]] std::vector<Stretch> ReadPath(std::string_view path, const Box& box);

}  // namespace vantor::win32
