#pragma once

#include <algorithm>
#include <cstdint>

namespace vantor::form {

/// A length on the screen in units of 1/1440 inch; 15 of them are a pixel at 96 dots per inch.
using Twips = int;

inline constexpr Twips TwipsPerInch = 1440;

/// A position and a size in twips. Relative to the container for a control, to the desktop for a form.
struct Rect {
  Twips Left = 0;
  Twips Top = 0;
  Twips Width = 0;
  Twips Height = 0;

  [[nodiscard]] Twips Right() const { return Left + Width; }
  [[nodiscard]] Twips Bottom() const { return Top + Height; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

/// How far two ranges overlap; 0 if they don't.
[[nodiscard]] inline Twips Overlap(Twips from, Twips to, Twips otherFrom, Twips otherTo) {
  return std::max(std::min(to, otherTo) - std::max(from, otherFrom), 0);
}

/// The size of the area that two rectangles share, in square twips.
[[nodiscard]] inline double SharedArea(const Rect& one, const Rect& other) {
  return double(Overlap(one.Left, one.Right(), other.Left, other.Right())) *
         Overlap(one.Top, one.Bottom(), other.Top, other.Bottom());
}

/// The start nearest to `wanted` at which a length fits into a range; the start of the range if it is too long.
[[nodiscard]] inline Twips Within(Twips wanted, Twips length, Twips from, Twips to) {
  return std::max(std::min(wanted, to - length), from);
}

/// The space kept free at the sides of something, in twips.
struct Margins {
  Twips Left = 0;
  Twips Top = 0;
  Twips Right = 0;
  Twips Bottom = 0;
};

struct Size {
  Twips Width = 0;
  Twips Height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

/// One screen of the desktop. Twips per pixel may be fractional (7.5 at 192 dots per inch).
struct Screen {
  Rect Bounds;
  Rect WorkArea;
  double TwipsPerPixelX = 15;
  double TwipsPerPixelY = 15;

  friend bool operator==(const Screen&, const Screen&) = default;
};

/// A colour: 0x00BBGGRR, or 0x800000nn for the system colour nn, which follows the user's theme.
enum class Color : std::uint32_t {
  Silver = 0x00C0C0C0,
  White = 0x00FFFFFF,
  MarkBlue = 0x00A8482C,  // the background of the product's mark
  LineBlue = 0x00FFC8B4,  // red 180, green 200, blue 255: the one accent of the product
  WindowBackground = 0x80000005,
  WindowText = 0x80000008,
  ButtonFace = 0x8000000F,
  ButtonText = 0x80000012,
};

}  // namespace vantor::form
