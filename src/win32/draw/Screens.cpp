#include "win32/draw/Screens.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "win32/base/SystemLibrary.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

namespace {

/// A function that only newer systems have; null on others.
template <class Function>
Function FindInUser32(const char* name) {
  return FindFunction<Function>(GetModuleHandleW(L"user32.dll"), name);
}

int PlainSystemDpi() {
  static const int dpi = GetDeviceCaps(WindowDc(nullptr).Get(), LOGPIXELSX);
  return dpi;
}

/// The resolution that Windows reports.
int PlainDpiOf(HMONITOR monitor) {
  // Shcore.dll exists since Windows 8.1.
  using GetDpi = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
  static const auto getDpi = FindFunction<GetDpi>(LoadSystemLibrary(L"shcore.dll"), "GetDpiForMonitor");
  UINT x = 0;
  UINT y = 0;
  return getDpi != nullptr && getDpi(monitor, 0, &x, &y) == S_OK && x != 0 ? static_cast<int>(x) : PlainSystemDpi();
}

HMONITOR PrimaryMonitor() { return MonitorFromPoint(POINT{}, MONITOR_DEFAULTTOPRIMARY); }

LOGFONTW PlainMessageFont() {
  NONCLIENTMETRICSW metrics{sizeof metrics};
  // The call with a resolution exists since Windows 10.
  using ParametersForDpi = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);
  static const auto forDpi = FindInUser32<ParametersForDpi>("SystemParametersInfoForDpi");
  if (forDpi == nullptr || forDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, 96) == FALSE) {
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, 96, PlainSystemDpi());
  }
  return metrics.lfMessageFont;
}

BOOL CALLBACK AddMonitor(HMONITOR handle, HDC /*dc*/, RECT* /*area*/, LPARAM monitors) {
  reinterpret_cast<std::vector<HMONITOR>*>(monitors)->push_back(handle);
  return TRUE;
}

int Gap(int from, int to, int otherFrom, int otherTo) { return std::max({otherFrom - to, from - otherTo, 0}); }

}  // namespace

/// A screen in pixels and in twips.
struct Screens::Monitor {
  RECT Pixels{};
  RECT WorkArea{};
  int Dpi = 96;
  form::Rect Twips;

  [[nodiscard]] form::Screen ToScreen() const {
    form::Screen screen;
    screen.Bounds = Twips;
    screen.WorkArea = {Twips.Left + ToTwips(WorkArea.left - Pixels.left, Dpi),
                       Twips.Top + ToTwips(WorkArea.top - Pixels.top, Dpi),
                       ToTwips(WorkArea.right - WorkArea.left, Dpi), ToTwips(WorkArea.bottom - WorkArea.top, Dpi)};
    screen.TwipsPerPixelX = screen.TwipsPerPixelY = double(form::TwipsPerInch) / Dpi;
    return screen;
  }
};

const Screens::TextSize& Screens::UserTextSize() const {
  if (textSize_) return *textSize_;
  constexpr double UsualHeight = 12;  // pixels: 9 points
  TextSize size;
  size.Font = PlainMessageFont();
  const double wanted = std::abs(size.Font.lfHeight) / UsualHeight;
  if (wanted > 1) {
    size.Scale = wanted;
    size.Font.lfHeight = std::lround(size.Font.lfHeight / wanted);  // the scale compensates for it
  }
  return textSize_.emplace(size);
}

/// The start in twips of a range of pixels: the edge nearer to zero, where the main screen is, stays fixed.
form::Twips Screens::Start(LONG from, LONG to, int dpi) const {
  if (to <= 0) return ToTwips(to, SystemDpi()) - ToTwips(to - from, dpi);
  return ToTwips(from, SystemDpi());
}

Screens::Monitor Screens::Describe(HMONITOR handle) const {
  MONITORINFO info{sizeof info};
  GetMonitorInfoW(handle, &info);
  const RECT& pixels = info.rcMonitor;
  const int dpi = WithTextScale(PlainDpiOf(handle));
  return {pixels,
          info.rcWork,
          dpi,
          {Start(pixels.left, pixels.right, dpi), Start(pixels.top, pixels.bottom, dpi),
           ToTwips(pixels.right - pixels.left, dpi), ToTwips(pixels.bottom - pixels.top, dpi)}};
}

Screens::Monitor Screens::Best(const form::Rect& place) const {
  std::vector<HMONITOR> handles;
  EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&handles));
  Monitor best = Describe(handles.empty() ? PrimaryMonitor() : handles.front());
  const auto score = [&](const Monitor& monitor) {
    const form::Rect& area = monitor.Twips;
    const double shared = form::SharedArea(place, area);
    if (shared > 0) return shared;
    return -double(Gap(place.Left, place.Right(), area.Left, area.Right())) -
           Gap(place.Top, place.Bottom(), area.Top, area.Bottom());
  };
  for (std::size_t i = 1; i < handles.size(); ++i) {
    const Monitor other = Describe(handles[i]);
    if (score(other) > score(best)) best = other;
  }
  return best;
}

void Screens::DeclareAwareness() {
  using SetContext = BOOL(WINAPI*)(HANDLE);
  const auto setContext = FindInUser32<SetContext>("SetProcessDpiAwarenessContext");
  const auto perMonitorV2 = reinterpret_cast<HANDLE>(-4);  // DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2
  if (setContext == nullptr || setContext(perMonitorV2) == FALSE) SetProcessDPIAware();
}

int Screens::WithTextScale(int dpi) const {
  constexpr double Inexactness = 0.01;  // of the scale, whose product may be meant as a whole number
  return static_cast<int>(dpi * UserTextSize().Scale + Inexactness);
}

int Screens::SystemDpi() const { return WithTextScale(PlainSystemDpi()); }

int Screens::DpiOf(HWND window) const {
  return WithTextScale(PlainDpiOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)));
}

int Screens::DpiOf(const RECT& pixels) const {
  return WithTextScale(PlainDpiOf(MonitorFromRect(&pixels, MONITOR_DEFAULTTONEAREST)));
}

int Screens::ToPixels(form::Twips twips, int dpi) { return MulDiv(twips, dpi, form::TwipsPerInch); }

form::Twips Screens::ToTwips(int pixels, int dpi) { return MulDiv(pixels, form::TwipsPerInch, dpi); }

RECT Screens::PixelsOf(const form::Rect& place) const {
  const Monitor screen = Best(place);
  RECT pixels;
  pixels.left = screen.Pixels.left + ToPixels(place.Left - screen.Twips.Left, screen.Dpi);
  pixels.top = screen.Pixels.top + ToPixels(place.Top - screen.Twips.Top, screen.Dpi);
  pixels.right = pixels.left + ToPixels(place.Width, screen.Dpi);
  pixels.bottom = pixels.top + ToPixels(place.Height, screen.Dpi);
  return pixels;
}

form::Rect Screens::TwipsOf(const RECT& pixels) const {
  const Monitor screen = Describe(MonitorFromRect(&pixels, MONITOR_DEFAULTTONEAREST));
  return {screen.Twips.Left + ToTwips(pixels.left - screen.Pixels.left, screen.Dpi),
          screen.Twips.Top + ToTwips(pixels.top - screen.Pixels.top, screen.Dpi),
          ToTwips(pixels.right - pixels.left, screen.Dpi), ToTwips(pixels.bottom - pixels.top, screen.Dpi)};
}

void Screens::AddEdges(RECT& inside, DWORD style, DWORD extendedStyle, int dpi) const {
  // The call with a resolution exists since Windows 10.
  using AdjustForDpi = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
  static const auto forDpi = FindInUser32<AdjustForDpi>("AdjustWindowRectExForDpi");
  const long plainDpi = std::lround(dpi / UserTextSize().Scale);
  if (forDpi == nullptr || forDpi(&inside, style, FALSE, extendedStyle, static_cast<UINT>(plainDpi)) == FALSE) {
    AdjustWindowRectEx(&inside, style, FALSE, extendedStyle);
  }
}

form::Screen Screens::At(const form::Rect& place) const { return Best(place).ToScreen(); }

form::Screen Screens::Primary() const { return Describe(PrimaryMonitor()).ToScreen(); }

LOGFONTW Screens::MessageFont(int dpi) const {
  LOGFONTW font = UserTextSize().Font;
  font.lfHeight = font.lfHeight * dpi / 96;  // rounded down, so that texts don't need more space than was measured
  return font;
}

}  // namespace vantor::win32
