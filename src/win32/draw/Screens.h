#pragma once

#include <windows.h>

#include <optional>

#include "form/Geometry.h"

namespace vantor::win32 {

/// The screens of the desktop, and the conversion between twips and pixels.
///
/// Every screen has its own resolution; the system's is that of the main screen when the user signed in. Positions on
/// the desktop are given in twips in such a way that lengths within a screen are correct: the edge of a screen that is
/// nearer to the main screen is placed by the system's resolution, and everything else is measured from there.
///
/// If the user has chosen larger texts, all resolutions here are increased by the same factor, so that whatever
/// contains a text grows with it.
class Screens {
 public:
  /// Tells Windows that the program scales itself on every screen. Does nothing if the manifest already says so.
  static void DeclareAwareness();

  /// The user's settings or the screens have changed: cached values are discarded.
  void Forget() { textSize_.reset(); }

  /// The resolution that Windows reports, increased for larger texts.
  [[nodiscard]] int WithTextScale(int dpi) const;
  [[nodiscard]] int SystemDpi() const;
  /// The dots per inch of the screen that contains most of the window, or of the rectangle in pixels.
  [[nodiscard]] int DpiOf(HWND window) const;
  [[nodiscard]] int DpiOf(const RECT& pixels) const;

  [[nodiscard]] static int ToPixels(form::Twips twips, int dpi);
  [[nodiscard]] static form::Twips ToTwips(int pixels, int dpi);

  /// A rectangle on the desktop in pixels. Its size is the one that it has on its screen.
  [[nodiscard]] RECT PixelsOf(const form::Rect& place) const;
  /// A rectangle in pixels, converted to twips.
  [[nodiscard]] form::Rect TwipsOf(const RECT& pixels) const;

  /// Adds a window's title bar and edges around its inside.
  void AddEdges(RECT& inside, DWORD style, DWORD extendedStyle, int dpi) const;

  [[nodiscard]] form::Screen At(const form::Rect& place) const;
  [[nodiscard]] form::Screen Primary() const;

  /// The system's font for messages and dialogs at a resolution.
  [[nodiscard]] LOGFONTW MessageFont(int dpi) const;

 private:
  /// The user's font for messages and dialogs at 96 dots per inch, and the scale of everything else that follows from
  /// it.
  struct TextSize {
    LOGFONTW Font{};
    double Scale = 1;
  };
  struct Monitor;

  const TextSize& UserTextSize() const;
  [[nodiscard]] Monitor Describe(HMONITOR handle) const;
  /// The monitor that contains most of the place; the nearest one if none does.
  [[nodiscard]] Monitor Best(const form::Rect& place) const;
  [[nodiscard]] form::Twips Start(LONG from, LONG to, int dpi) const;

  mutable std::optional<TextSize> textSize_;  // looked up when it is first needed
};

}  // namespace vantor::win32
