#pragma once

#include <string_view>
#include <vector>

#include "win32/draw/Canvas.h"

namespace vantor::win32 {

/// One section of a path: points joined by straight lines.
struct Stretch {
  std::vector<Point> Points;
  bool Closed = false;
  bool Curved = false;  // some of its points approximate a curve
};

/// Converts path data (see form::Shape) to points in a box, whose sides represent 16 units. Stops at anything that is
/// not path data.
[[nodiscard]] std::vector<Stretch> ReadPath(std::string_view path, const Box& box);

}  // namespace vantor::win32
