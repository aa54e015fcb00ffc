#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "form/Geometry.h"
#include "win32/base/Handle.h"
#include "win32/draw/Screens.h"

namespace vantor::win32 {

/// The colours of what the program draws itself: one light blue line of thought, or the system's colours alone
/// where the user has asked for high contrast.
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
  COLORREF Focus;             // the edge of what has the focus
  COLORREF Accent;            // the product's light blue
  COLORREF AccentFoot;        // what it deepens to at the foot of a large area
  COLORREF Letter;            // the small letters below a drawing
  COLORREF DisabledOnSilver;  // text
};

/// The user's font for messages, as it is, bold, or small and bold for a single letter.
enum class FontStyle { Plain, Bold, Small };

/// Colours, brushes and fonts as the user's settings have them, looked up when first needed.
class Theme {
 public:
  explicit Theme(const Screens& screens) : screens_(screens) {}

  /// Settings have changed: everything is looked up again.
  void Forget();

  [[nodiscard]] const Palette& Colors() const;
  /// A form's colours on the screen. With high contrast on, only the system's own come through.
  [[nodiscard]] COLORREF Background(form::Color color) const;
  /// What is disabled has a colour that depends on what it is on.
  [[nodiscard]] COLORREF TextColor(form::Color color, bool enabled, COLORREF background) const;
  /// Lives as long as the theme.
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
  // What was looked up.
  mutable std::optional<Palette> palette_;
  mutable std::vector<ColoredBrush> brushes_;
  mutable std::vector<SizedFont> fonts_;
  std::vector<SizedFont> oldFonts_;  // windows may hold them until they are given new ones
};

}  // namespace vantor::win32
