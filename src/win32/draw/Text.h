#pragma once

#include <windows.h>

#include <string_view>

namespace vantor::win32 {

/// The device context of a window with its edges, or of the screen for null, for the length of a scope.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetWindowDC(window)) {}
  ~WindowDc() { ReleaseDC(window_, dc_); }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;

  [[nodiscard]] HDC Get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

/// Selects a font or a bitmap for the length of a scope.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), old_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, old_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ old_;
};

/// The size of a text in pixels, with its own line breaks only. Ampersands are ordinary characters.
[[nodiscard]] SIZE TextSize(std::wstring_view text, HFONT font);
/// The height in pixels of a line.
[[nodiscard]] int TextHeight(HFONT font);
/// Draws a text as DrawText does, without a background; ampersands are ordinary characters.
void DrawPlainText(HDC dc, std::wstring_view text, RECT area, HFONT font, COLORREF color, UINT format);
/// Draws a line of text with the font and the colour of the device context, with its characters where they were
/// measured: not every version of Windows draws text as wide as it measures it. Scripts with shaping or from right to
/// left are left to the system.
void DrawPlaced(HDC dc, int x, int y, std::wstring_view text);

}  // namespace vantor::win32
