#pragma once

#include <windows.h>

#include <optional>

#include "form/Geometry.h"

namespace vantor::win32 {

/// The screens of the desktop, and the way between twips and pixels.
///
/// Every screen has a resolution of its own, and the system's is the one of the main screen when the user signed
/// in. Places on the desktop are told in twips such that lengths within a screen are true on it: a screen's edge
/// that is nearer to the main screen lies where the system's resolution puts it, and the rest is counted from there.
///
/// Where the user has asked for larger texts, all resolutions here are raised by as much, so that whatever holds a text
/// grows with it.
class Screens {
 public:
  /// Tells Windows that the program scales itself on every screen. Does nothing when the manifest has said so.
  static void DeclareAwareness();

  /// The user's settings or the screens have changed: what is remembered of them is asked for anew.
  void Forget() { textSize_.reset(); }

  /// The resolution that Windows tells of, raised for larger texts.
  [[nodiscard]] int WithTextScale(int dpi) const;
  [[nodiscard]] int SystemDpi() const;
  /// Dots per inch of the screen that holds most of the window, or of the rectangle in pixels.
  [[nodiscard]] int DpiOf(HWND window) const;
  [[nodiscard]] int DpiOf(const RECT& pixels) const;

  [[nodiscard]] static int ToPixels(form::Twips twips, int dpi);
  [[nodiscard]] static form::Twips ToTwips(int pixels, int dpi);

  /// A place on the desktop in pixels. Its size is the one that it has on the screen it is on.
  [[nodiscard]] RECT PixelsOf(const form::Rect& place) const;
  /// Where a window's top left corner stands, in twips.
  [[nodiscard]] form::Rect TwipsOf(const RECT& pixels) const;

  /// Adds a window's title bar and edges around its inside.
  void AddEdges(RECT& inside, DWORD style, DWORD extendedStyle, int dpi) const;

  [[nodiscard]] form::Screen At(const form::Rect& place) const;
  [[nodiscard]] form::Screen Primary() const;

  /// The system's font for messages and dialogs at a resolution.
  [[nodiscard]] LOGFONTW MessageFont(int dpi) const;

 private:
  /// The user's font for messages and dialogs at 96 dots per inch, and what its size makes of everything else.
  struct TextSize {
    LOGFONTW Font{};
    double Scale = 1;
  };
  struct Monitor;

  const TextSize& UserTextSize() const;
  [[nodiscard]] Monitor Describe(HMONITOR handle) const;
  /// The monitor that holds most of the place; the nearest one if none does.
  [[nodiscard]] Monitor Best(const form::Rect& place) const;
  [[nodiscard]] form::Twips Start(LONG from, LONG to, int dpi) const;

  mutable std::optional<TextSize> textSize_;  // looked up when it is first needed
};

}  // namespace vantor::win32
