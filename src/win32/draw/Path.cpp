#include "win32/draw/Path.h"

#include <algorithm>
#include <cmath>

namespace vantor::win32 {

namespace {

constexpr double Units = 16;

/// Reads numbers and commands from the start of a text.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  /// The next command; 0 at the end.
  char Command() {
    SkipBlanks();
    if (text_.empty()) return 0;
    const char command = text_.front();
    text_.remove_prefix(1);
    return command;
  }

  double Number() {
    SkipBlanks();
    double number = 0;
    double unit = 1;
    for (bool behindPoint = false; !text_.empty(); text_.remove_prefix(1)) {
      const char c = text_.front();
      if (c == '.') {
        behindPoint = true;
      } else if (c >= '0' && c <= '9') {
        number = number * 10 + (c - '0');
        if (behindPoint) unit *= 10;
      } else {
        break;
      }
    }
    return number / unit;
  }

 private:
  void SkipBlanks() {
    while (!text_.empty() && text_.front() == ' ') text_.remove_prefix(1);
  }

  std::string_view text_;
};

/// Adds the points of a curve (cubic Bézier) that begins at the last point.
void AddCurve(std::vector<Point>& points, Point a, Point b, Point end) {
  const Point start = points.back();
  const double length = std::hypot(a.X - start.X, a.Y - start.Y) + std::hypot(b.X - a.X, b.Y - a.Y) +
                        std::hypot(end.X - b.X, end.Y - b.Y);
  const int steps = std::clamp(static_cast<int>(length / 1.5), 4, 16);
  for (int i = 1; i <= steps; ++i) {
    const double t = double(i) / steps;
    const double u = 1 - t;
    const auto mix = [&](double p, double q, double r, double s) {
      return u * u * u * p + 3 * u * u * t * q + 3 * u * t * t * r + t * t * t * s;
    };
    points.push_back({mix(start.X, a.X, b.X, end.X), mix(start.Y, a.Y, b.Y, end.Y)});
  }
}

}  // namespace

std::vector<Stretch> ReadPath(std::string_view path, const Box& box) {
  std::vector<Stretch> stretches;
  Reader reader(path);
  const auto x = [&] { return box.Left + reader.Number() * box.Width / Units; };
  const auto y = [&] { return box.Top + reader.Number() * box.Height / Units; };
  const auto point = [&] {
    const double across = x();
    return Point{across, y()};
  };
  for (char command = reader.Command(); command != 0; command = reader.Command()) {
    if (command == 'M') {
      stretches.push_back({{point()}});
      continue;
    }
    if (stretches.empty()) break;
    Stretch& stretch = stretches.back();
    std::vector<Point>& points = stretch.Points;
    if (command == 'L') {
      points.push_back(point());
    } else if (command == 'H') {
      points.push_back({x(), points.back().Y});
    } else if (command == 'V') {
      points.push_back({points.back().X, y()});
    } else if (command == 'C') {
      const Point a = point();
      const Point b = point();
      AddCurve(points, a, b, point());
      stretch.Curved = true;
    } else if (command == 'Z') {
      stretch.Closed = true;
    } else {
      break;
    }
  }
  return stretches;
}

}  // namespace vantor::win32
