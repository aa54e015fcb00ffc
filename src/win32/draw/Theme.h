#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "form/Geometry.h"
#include "win32/base/Handle.h"
#include "win32/draw/Screens.h"

namespace vantor::win32 {

/// The colours of what the program draws itself: shades of blue, or only the system's colours if the user has chosen
/// high contrast.
struct Palette {
  struct Face {
    COLORREF Fill;
    COLORREF Edge;
    COLORREF Text;
  };

  bool HighContrast;
  Face Normal;
  Face Hot;
  Face Pressed;
  Face Open;
  Face Disabled;
  COLORREF Outline;           // the edge of a window
  COLORREF Line;              // edges of frames and boxes
  COLORREF Focus;             // the edge of the control with the focus
  COLORREF Accent;            // the product's light blue
  COLORREF AccentFoot;        // the darker shade at the bottom of a large area
  COLORREF Letter;            // the small letters below a drawing
  COLORREF DisabledOnSilver;  // text
};

/// The user's font for messages: unchanged, bold, or small and bold for a single letter.
enum class FontStyle { Plain, Bold, Small };

/// Colours, brushes and fonts according to the user's settings, looked up when first needed.
class Theme {
 public:
  explicit Theme(const Screens& screens) : screens_(screens) {}

  /// Settings have changed: everything is looked up again.
  void Forget();

  [[nodiscard]] const Palette& Colors() const;
  /// A form's colour on the screen. With high contrast, only system colours are used.
  [[nodiscard]] COLORREF Background(form::Color color) const;
  /// The colour of disabled text depends on its background.
  [[nodiscard]] COLORREF TextColor(form::Color color, bool enabled, COLORREF background) const;
  /// Valid as long as the theme exists.
  [[nodiscard]] HBRUSH Brush(COLORREF color) const;
  [[nodiscard]] HFONT Font(int dpi, FontStyle style) const;

 private:
  struct ColoredBrush {
    COLORREF Color;
    BrushHandle Brush;
  };
  struct SizedFont {
    int Dpi;
    FontStyle Style;
    FontHandle Font;
  };

  const Screens& screens_;
  // Cached values.
  mutable std::optional<Palette> palette_;
  mutable std::vector<ColoredBrush> brushes_;
  mutable std::vector<SizedFont> fonts_;
  std::vector<SizedFont> oldFonts_;  // windows may use them until they are given new ones
};

}  // namespace vantor::win32
