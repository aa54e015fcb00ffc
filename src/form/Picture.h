#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "form/Geometry.h"

namespace vantor::form {

/// A part of a drawing, in a square of 16 by 16 units, with y pointing downwards.
struct Shape {
  /// Path data as in SVG, limited to the commands M, L, H, V, C and Z, each written out, with absolute coordinates.
  std::string_view Path;
  /// The colour of an area. Without one the path is a line, in the colour and thickness of its surroundings.
  std::optional<Color> Fill = {};
};

/// What is drawn, from back to front. It is not owned.
using Drawing = std::span<const Shape>;

/// What a picture is drawn on.
enum class Background {
  None,
  Normal,  // the states of a button
  Pressed,
  Disabled,
  Band,  // the side band of a message
};

/// A picture that the back end draws at any size.
struct Picture {
  form::Background Background = Background::None;
  form::Drawing Drawing = {};

  [[nodiscard]] bool Empty() const { return Background == form::Background::None && Drawing.empty(); }
  friend bool operator==(const Picture& a, const Picture& b) {
    return a.Background == b.Background && a.Drawing.data() == b.Drawing.data();
  }
};

}  // namespace vantor::form
