#pragma once

#include <windows.h>

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
  static void Forget();

  /// The resolution that Windows tells of, raised for larger texts.
  [[nodiscard]] static int WithTextScale(int dpi);
  [[nodiscard]] static int SystemDpi();
  /// Dots per inch of the screen that holds most of the window, or of the rectangle in pixels.
  [[nodiscard]] static int DpiOf(HWND window);
  [[nodiscard]] static int DpiOf(const RECT& pixels);

  [[nodiscard]] static int ToPixels(form::Twips twips, int dpi);
  [[nodiscard]] static form::Twips ToTwips(int pixels, int dpi);

  /// A place on the desktop in pixels. Its size is the one that it has on the screen it is on.
  [[nodiscard]] static RECT PixelsOf(const form::Rect& place);
  /// Where a window's top left corner stands, in twips.
  [[nodiscard]] static form::Rect TwipsOf(const RECT& pixels);

  /// Adds a window's title bar and edges around its inside.
  static void AddEdges(RECT& inside, DWORD style, DWORD extendedStyle, int dpi);

  [[nodiscard]] static form::Screen At(const form::Rect& place);
  [[nodiscard]] static form::Screen Primary();

  /// The system's font for messages and dialogs at a resolution.
  [[nodiscard]] static LOGFONTW MessageFont(int dpi);
};

}  // namespace vantor::win32
