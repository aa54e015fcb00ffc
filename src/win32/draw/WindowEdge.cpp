#include "win32/draw/WindowEdge.h"

#include <algorithm>
#include <cmath>

#include "win32/base/SystemLibrary.h"
#include "win32/draw/Areas.h"

namespace vantor::win32 {

namespace {

// Attributes of a window for the compositor, from dwmapi.h as of Windows 11.
constexpr DWORD CornerPreference = 33;
constexpr DWORD BorderColor = 34;
constexpr DWORD RoundCorner = 2;
constexpr DWORD FirstBuildWithRoundCorners = 22000;

double CornerRadius(double scale) { return std::round(6 * scale); }

/// Wine's compositor accepts any attribute, so the decision depends on the system's version.
bool CompositorRoundsCorners() {
  static const bool rounds = [] {
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW version{sizeof version};
    const auto getVersion = FindFunction<GetVersion>(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    return getVersion != nullptr && getVersion(&version) == 0 && version.dwBuildNumber >= FirstBuildWithRoundCorners;
  }();
  return rounds;
}

void SetAttribute(HWND window, DWORD attribute, DWORD value) {
  using SetWindowAttribute = HRESULT(WINAPI*)(HWND, DWORD, const void*, DWORD);
  static const auto set = FindFunction<SetWindowAttribute>(LoadSystemLibrary(L"dwmapi.dll"), "DwmSetWindowAttribute");
  if (set != nullptr) set(window, attribute, &value, sizeof value);
}

}  // namespace

double EdgeThickness(double scale) { return std::max(std::round(scale), 1.0); }

void RoundCorners(HWND window, const Palette& colors, double scale) {
  if (CompositorRoundsCorners()) {
    SetAttribute(window, CornerPreference, RoundCorner);
    SetAttribute(window, BorderColor, colors.Outline);
    return;
  }
  const RECT place = WindowArea(window);
  const int across = static_cast<int>(2 * CornerRadius(scale));
  // The system takes ownership of the region.
  SetWindowRgn(window,
               CreateRoundRectRgn(0, 0, place.right - place.left + 1, place.bottom - place.top + 1, across, across),
               TRUE);
}

void DrawWindowEdge(Canvas& canvas, const Box& window, const Palette& colors, COLORREF background, double scale) {
  const double line = EdgeThickness(scale);
  const double radius = CornerRadius(scale);
  const Box inside = window.Inset(line);
  const bool offEdge = inside.Left <= 0 && inside.Top <= 0 && inside.Left + inside.Width >= canvas.Width() &&
                       inside.Top + inside.Height >= canvas.Height();
  const bool offCorners = inside.Top + radius <= 0 && inside.Top + inside.Height - radius >= canvas.Height();
  if (offEdge && offCorners) return;
  canvas.Clear(colors.Outline);
  canvas.RoundedBox(inside, radius - line, background);
}

void PaintWindow(HDC dc, SIZE size, const Theme& theme, COLORREF background, double scale) {
  const int line = static_cast<int>(EdgeThickness(scale));
  const int corner = std::min<int>(static_cast<int>(CornerRadius(scale)), size.cy / 2);
  const RECT sides{0, corner, size.cx, size.cy - corner};
  FillRect(dc, &sides, theme.Brush(theme.Colors().Outline));
  const RECT middle{line, corner, size.cx - line, size.cy - corner};
  FillRect(dc, &middle, theme.Brush(background));
  const Box window{0, 0, double(size.cx), double(size.cy)};
  for (const int top : {0, static_cast<int>(size.cy) - corner}) {
    Canvas strip(size.cx, corner);
    DrawWindowEdge(strip, {window.Left, window.Top - top, window.Width, window.Height}, theme.Colors(), background,
                   scale);
    strip.Show(dc, 0, top);
  }
}

}  // namespace vantor::win32
