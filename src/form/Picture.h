#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "form/Geometry.h"

namespace vantor::form {

/// A part of a drawing, on a square whose sides are 16 long, with y growing downwards.
struct Shape {
  /// Path data as in SVG, with the commands M, L, H, V, C and Z alone, each written out, in absolute numbers.
  std::string_view Path;
  /// The colour of an area. Without one the path is a line, in the colour and thickness of its surroundings.
  std::optional<Color> Fill = {};
};

/// What is drawn, from the back to the front. Whoever names it keeps it.
using Drawing = std::span<const Shape>;

/// What a picture is drawn on.
enum class Background {
  None,
  Normal,  // the faces of a button
  Pressed,
  Disabled,
  Band,  // the side band of a message
};

/// A picture that the back end draws at whatever size is asked for.
struct Picture {
  form::Background Background = Background::None;
  form::Drawing Drawing = {};

  [[nodiscard]] bool Empty() const { return Background == form::Background::None && Drawing.empty(); }
  friend bool operator==(const Picture& a, const Picture& b) {
    return a.Background == b.Background && a.Drawing.data() == b.Drawing.data();
  }
};

}  // namespace vantor::form
