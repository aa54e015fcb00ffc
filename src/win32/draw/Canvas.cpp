#include "win32/draw/Canvas.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace vantor::win32 {

namespace {

constexpr double Pi = 3.14159265358979323846;
/// The number of lines at which each row of pixels is sampled; horizontally, coverage is exact.
constexpr int LinesPerRow = 5;

struct Crossing {
  double X;
  int Direction;
};

/// Where the outlines cross the horizontal line at `y`, from left to right.
void FindCrossings(const Outlines& outlines, double y, std::vector<Crossing>& crossings) {
  crossings.clear();
  for (const std::vector<Point>& points : outlines) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      const Point& a = points[i];
      const Point& b = points[i + 1 < points.size() ? i + 1 : 0];
      if ((a.Y <= y) == (b.Y <= y)) continue;
      crossings.push_back({a.X + (y - a.Y) * (b.X - a.X) / (b.Y - a.Y), a.Y < b.Y ? 1 : -1});
    }
  }
  std::sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) { return a.X < b.X; });
}

/// Adds the range from `from` to `to` to a row's coverage.
void Cover(std::vector<double>& row, double from, double to) {
  from = std::max(from, 0.0);
  to = std::min(to, double(row.size()));
  for (double x = from; x < to;) {
    const double next = std::min(std::floor(x) + 1, to);
    row[static_cast<std::size_t>(x)] += (next - x) / LinesPerRow;
    x = next;
  }
}

bool IsWhole(double number) { return std::floor(number) == number; }

void AddArc(std::vector<Point>& points, Point center, double radius, double from, double to) {
  const int steps = static_cast<int>(std::abs(to - from) / Pi * 2 * std::clamp(radius + 1, 3.0, 16.0));
  for (int i = 0; i <= steps; ++i) {
    const double angle = from + (to - from) * i / steps;
    points.push_back({center.X + radius * std::cos(angle), center.Y + radius * std::sin(angle)});
  }
}

}  // namespace

Box Box::Square() const {
  const double side = std::min(Width, Height);
  return {Left + (Width - side) / 2, Top + (Height - side) / 2, side, side};
}

Canvas::Canvas(int width, int height) : width_(std::max(width, 1)), height_(std::max(height, 1)) {
  dc_.Reset(CreateCompatibleDC(nullptr));
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width_;
  info.bmiHeader.biHeight = -height_;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  bitmap_.Reset(CreateDIBSection(dc_.Get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!dc_ || !bitmap_) throw std::bad_alloc();
  pixels_ = static_cast<std::uint32_t*>(bits);
  selected_.emplace(dc_.Get(), bitmap_.Get());
}

void Canvas::Clear(COLORREF color) { Shade(Whole(), color, color); }

void Canvas::Shade(const Box& box, COLORREF top, COLORREF bottom) {
  GdiFlush();
  const int from = std::clamp(static_cast<int>(box.Top), 0, height_);
  const int to = std::clamp(static_cast<int>(box.Top + box.Height), from, height_);
  const int left = std::clamp(static_cast<int>(box.Left), 0, width_);
  const int right = std::clamp(static_cast<int>(box.Left + box.Width), left, width_);
  for (int y = from; y < to; ++y) {
    const int part = to - from > 1 ? (y - from) * 256 / (to - from - 1) : 0;
    const auto mix = [&](int a, int b) { return static_cast<std::uint32_t>(a + (b - a) * part / 256); };
    const std::uint32_t pixel = mix(GetRValue(top), GetRValue(bottom)) << 16 |
                                mix(GetGValue(top), GetGValue(bottom)) << 8 | mix(GetBValue(top), GetBValue(bottom));
    std::fill(pixels_ + y * width_ + left, pixels_ + y * width_ + right, pixel);
  }
}

void Canvas::Blend(int x, int y, double share, COLORREF color) {
  std::uint32_t& pixel = pixels_[y * width_ + x];
  const int part = static_cast<int>(std::min(std::lround(share * 256), 256L));
  const auto mix = [&](unsigned shift, int to) {
    const int from = static_cast<int>(pixel >> shift & 0xFFU);
    return static_cast<std::uint32_t>(from + (to - from) * part / 256) << shift;
  };
  pixel = mix(16, GetRValue(color)) | mix(8, GetGValue(color)) | mix(0, GetBValue(color));
}

void Canvas::Fill(const Outlines& outlines, COLORREF color) {
  Point low{double(width_), double(height_)};
  Point high{0, 0};
  for (const std::vector<Point>& points : outlines) {
    for (const Point& point : points) {
      low = {std::min(low.X, point.X), std::min(low.Y, point.Y)};
      high = {std::max(high.X, point.X), std::max(high.Y, point.Y)};
    }
  }
  const int left = std::clamp(static_cast<int>(std::floor(low.X)), 0, width_);
  const int right = std::clamp(static_cast<int>(std::ceil(high.X)), left, width_);
  const int first = std::max(static_cast<int>(std::floor(low.Y)), 0);
  const int last = std::min(static_cast<int>(std::ceil(high.Y)), height_);
  if (left == right || first >= last) return;
  GdiFlush();
  std::vector<double> row(static_cast<std::size_t>(width_));
  std::vector<Crossing> crossings;
  for (int y = first; y < last; ++y) {
    std::fill(row.begin(), row.end(), 0.0);
    for (int line = 0; line < LinesPerRow; ++line) {
      FindCrossings(outlines, y + (line + 0.5) / LinesPerRow, crossings);
      int winding = 0;
      for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].Direction;
        if (winding != 0) Cover(row, crossings[i].X, crossings[i + 1].X);
      }
    }
    for (int x = left; x < right; ++x) {
      const double share = row[static_cast<std::size_t>(x)];
      if (share > 0) Blend(x, y, share, color);
    }
  }
}

void Canvas::RoundedBox(const Box& box, double radius, COLORREF color) {
  radius = std::min({radius, box.Width / 2, box.Height / 2});
  const double right = box.Left + box.Width;
  const double bottom = box.Top + box.Height;
  // Between the rounded ends nothing needs smoothing if the sides are on pixel boundaries, as they usually are.
  const double end = std::ceil(radius);
  const bool onPixels = IsWhole(box.Left) && IsWhole(box.Top) && IsWhole(box.Width) && IsWhole(box.Height);
  const bool split = onPixels && box.Height > 2 * end;
  std::vector<Point> points;
  AddArc(points, {box.Left + radius, box.Top + radius}, radius, Pi, Pi * 1.5);
  AddArc(points, {right - radius, box.Top + radius}, radius, Pi * 1.5, Pi * 2);
  if (split) {
    points.push_back({right, box.Top + end});
    points.push_back({box.Left, box.Top + end});
    Fill({points}, color);
    Shade({box.Left, box.Top + end, box.Width, box.Height - 2 * end}, color, color);
    points.clear();
    points.push_back({box.Left, bottom - end});
    points.push_back({right, bottom - end});
  }
  AddArc(points, {right - radius, bottom - radius}, radius, 0, Pi * 0.5);
  AddArc(points, {box.Left + radius, bottom - radius}, radius, Pi * 0.5, Pi);
  Fill({points}, color);
}

void Canvas::EdgedBox(const Box& box, double radius, double thickness, COLORREF edge, COLORREF fill) {
  RoundedBox(box, radius, edge);
  RoundedBox(box.Inset(thickness), std::max(radius - thickness, 0.0), fill);
}

void Canvas::Line(const std::vector<Point>& points, double thickness, COLORREF color) {
  const double half = thickness / 2;
  // Round ends and corners, and a box from each to the next. All have the same orientation, so that they form one area.
  Outlines outlines;
  const Point* previous = nullptr;
  for (const Point& point : points) {
    AddArc(outlines.emplace_back(), point, half, 0, Pi * 2);
    if (previous != nullptr) {
      const double dx = point.X - previous->X;
      const double dy = point.Y - previous->Y;
      const double length = std::hypot(dx, dy);
      if (length > 0) {
        const double nx = dy / length * half;
        const double ny = -dx / length * half;
        outlines.push_back({{previous->X + nx, previous->Y + ny},
                            {point.X + nx, point.Y + ny},
                            {point.X - nx, point.Y - ny},
                            {previous->X - nx, previous->Y - ny}});
      }
    }
    previous = &point;
  }
  Fill(outlines, color);
}

void Canvas::Text(std::wstring_view text, RECT area, HFONT font, COLORREF color, UINT format) {
  DrawPlainText(dc_.Get(), text, area, font, color, format);
}

void Canvas::Show(HDC target, int x, int y) const { BitBlt(target, x, y, width_, height_, dc_.Get(), 0, 0, SRCCOPY); }

}  // namespace vantor::win32
