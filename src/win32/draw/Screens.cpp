#include "win32/draw/Screens.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <vector>

#include "win32/base/SystemLibrary.h"

namespace vantor::win32 {

namespace {

/// A function that only newer systems have; null elsewhere.
template <class Function>
Function FindInUser32(const char* name) {
  return FindFunction<Function>(GetModuleHandleW(L"user32.dll"), name);
}

int PlainSystemDpi() {
  static const int dpi = [] {
    const HDC screen = GetDC(nullptr);
    const int found = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return found > 0 ? found : 96;
  }();
  return dpi;
}

/// The resolution that Windows tells of.
int PlainDpiOf(HMONITOR monitor) {
  // Shcore.dll came with Windows 8.1.
  using GetDpi = HRESULT(WINAPI*)(HMONITOR, int, UINT*, UINT*);
  static const auto getDpi = FindFunction<GetDpi>(LoadSystemLibrary(L"shcore.dll"), "GetDpiForMonitor");
  UINT x = 0;
  UINT y = 0;
  return getDpi != nullptr && getDpi(monitor, 0, &x, &y) == S_OK && x != 0 ? static_cast<int>(x) : PlainSystemDpi();
}

HMONITOR PrimaryMonitor() { return MonitorFromPoint(POINT{}, MONITOR_DEFAULTTOPRIMARY); }

/// The user's font for messages and dialogs at 96 dots per inch, and what its size makes of everything else.
struct TextSize {
  LOGFONTW Font{};
  double Scale = 1;
};

LOGFONTW PlainMessageFont() {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  // The call that knows resolutions came with Windows 10.
  using ParametersForDpi = BOOL(WINAPI*)(UINT, UINT, void*, UINT, UINT);
  static const auto forDpi = FindInUser32<ParametersForDpi>("SystemParametersInfoForDpi");
  if (forDpi == nullptr || forDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, 96) == FALSE) {
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, 96, PlainSystemDpi());
  }
  return metrics.lfMessageFont;
}

std::optional<TextSize>& RememberedTextSize() {
  static std::optional<TextSize> size;
  return size;
}

const TextSize& UserTextSize() {
  std::optional<TextSize>& known = RememberedTextSize();
  if (known) return *known;
  constexpr double UsualHeight = 12;  // pixels: 9 points
  TextSize size;
  size.Font = PlainMessageFont();
  const double wanted = std::abs(size.Font.lfHeight) / UsualHeight;
  if (wanted > 1) {
    size.Scale = wanted;
    size.Font.lfHeight = std::lround(size.Font.lfHeight / wanted);  // the scale makes up for it
  }
  known = size;
  return *known;
}

int DpiOfMonitor(HMONITOR monitor) { return Screens::WithTextScale(PlainDpiOf(monitor)); }

/// A screen in both measures.
struct Place {
  HMONITOR Monitor = nullptr;
  RECT Pixels{};
  RECT WorkArea{};
  int Dpi = 96;
  form::Rect Twips;
};

/// The start in twips of a stretch of pixels: the edge nearer to zero, where the main screen is, stands still.
form::Twips Start(LONG from, LONG to, int dpi) {
  const int systemDpi = Screens::SystemDpi();
  if (to <= 0) return Screens::ToTwips(to, systemDpi) - Screens::ToTwips(to - from, dpi);
  return Screens::ToTwips(from, systemDpi);
}

Place Describe(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  Place place{monitor, info.rcMonitor, info.rcWork, DpiOfMonitor(monitor), {}};
  place.Twips = {Start(place.Pixels.left, place.Pixels.right, place.Dpi),
                 Start(place.Pixels.top, place.Pixels.bottom, place.Dpi),
                 Screens::ToTwips(place.Pixels.right - place.Pixels.left, place.Dpi),
                 Screens::ToTwips(place.Pixels.bottom - place.Pixels.top, place.Dpi)};
  return place;
}

BOOL CALLBACK AddPlace(HMONITOR monitor, HDC /*dc*/, RECT* /*area*/, LPARAM places) {
  reinterpret_cast<std::vector<Place>*>(places)->push_back(Describe(monitor));
  return TRUE;
}

std::vector<Place> AllPlaces() {
  std::vector<Place> places;
  EnumDisplayMonitors(nullptr, nullptr, AddPlace, reinterpret_cast<LPARAM>(&places));
  if (places.empty()) places.push_back(Describe(PrimaryMonitor()));
  return places;
}

int Gap(int from, int to, int otherFrom, int otherTo) { return std::max({otherFrom - to, from - otherTo, 0}); }

/// The screen that holds most of the place; the nearest one if none does.
Place Best(const form::Rect& place) {
  const auto score = [&](const Place& screen) {
    const form::Rect& area = screen.Twips;
    const double shared = double(form::Overlap(place.Left, place.Right(), area.Left, area.Right())) *
                          form::Overlap(place.Top, place.Bottom(), area.Top, area.Bottom());
    if (shared > 0) return shared;
    return -double(Gap(place.Left, place.Right(), area.Left, area.Right())) -
           Gap(place.Top, place.Bottom(), area.Top, area.Bottom());
  };
  const std::vector<Place> places = AllPlaces();
  return *std::max_element(places.begin(), places.end(),
                           [&](const Place& a, const Place& b) { return score(a) < score(b); });
}

form::Screen ToScreen(const Place& place) {
  form::Screen screen;
  screen.Bounds = place.Twips;
  screen.WorkArea = {place.Twips.Left + Screens::ToTwips(place.WorkArea.left - place.Pixels.left, place.Dpi),
                     place.Twips.Top + Screens::ToTwips(place.WorkArea.top - place.Pixels.top, place.Dpi),
                     Screens::ToTwips(place.WorkArea.right - place.WorkArea.left, place.Dpi),
                     Screens::ToTwips(place.WorkArea.bottom - place.WorkArea.top, place.Dpi)};
  screen.TwipsPerPixelX = screen.TwipsPerPixelY = double(form::TwipsPerInch) / place.Dpi;
  return screen;
}

}  // namespace

void Screens::DeclareAwareness() {
  using SetContext = BOOL(WINAPI*)(HANDLE);
  const auto setContext = FindInUser32<SetContext>("SetProcessDpiAwarenessContext");
  const auto perMonitorV2 = reinterpret_cast<HANDLE>(-4);  // DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2
  if (setContext == nullptr || setContext(perMonitorV2) == FALSE) SetProcessDPIAware();
}

void Screens::Forget() { RememberedTextSize().reset(); }

int Screens::WithTextScale(int dpi) {
  constexpr double Inexactness = 0.01;  // of the scale, which may stand for a whole number
  return static_cast<int>(dpi * UserTextSize().Scale + Inexactness);
}

int Screens::SystemDpi() { return WithTextScale(PlainSystemDpi()); }

int Screens::DpiOf(HWND window) { return DpiOfMonitor(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)); }

int Screens::DpiOf(const RECT& pixels) { return DpiOfMonitor(MonitorFromRect(&pixels, MONITOR_DEFAULTTONEAREST)); }

int Screens::ToPixels(form::Twips twips, int dpi) { return MulDiv(twips, dpi, form::TwipsPerInch); }

form::Twips Screens::ToTwips(int pixels, int dpi) { return MulDiv(pixels, form::TwipsPerInch, dpi); }

RECT Screens::PixelsOf(const form::Rect& place) {
  const Place screen = Best(place);
  RECT pixels;
  pixels.left = screen.Pixels.left + ToPixels(place.Left - screen.Twips.Left, screen.Dpi);
  pixels.top = screen.Pixels.top + ToPixels(place.Top - screen.Twips.Top, screen.Dpi);
  pixels.right = pixels.left + ToPixels(place.Width, screen.Dpi);
  pixels.bottom = pixels.top + ToPixels(place.Height, screen.Dpi);
  return pixels;
}

form::Rect Screens::TwipsOf(const RECT& pixels) {
  const Place screen = Describe(MonitorFromRect(&pixels, MONITOR_DEFAULTTONEAREST));
  return {screen.Twips.Left + ToTwips(pixels.left - screen.Pixels.left, screen.Dpi),
          screen.Twips.Top + ToTwips(pixels.top - screen.Pixels.top, screen.Dpi),
          ToTwips(pixels.right - pixels.left, screen.Dpi), ToTwips(pixels.bottom - pixels.top, screen.Dpi)};
}

void Screens::AddEdges(RECT& inside, DWORD style, DWORD extendedStyle, int dpi) {
  // The call that knows resolutions came with Windows 10.
  using AdjustForDpi = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
  static const auto forDpi = FindInUser32<AdjustForDpi>("AdjustWindowRectExForDpi");
  const long plainDpi = std::lround(dpi / UserTextSize().Scale);
  if (forDpi == nullptr || forDpi(&inside, style, FALSE, extendedStyle, static_cast<UINT>(plainDpi)) == FALSE) {
    AdjustWindowRectEx(&inside, style, FALSE, extendedStyle);
  }
}

form::Screen Screens::At(const form::Rect& place) { return ToScreen(Best(place)); }

form::Screen Screens::Primary() { return ToScreen(Describe(PrimaryMonitor())); }

LOGFONTW Screens::MessageFont(int dpi) {
  LOGFONTW font = UserTextSize().Font;
  font.lfHeight = font.lfHeight * dpi / 96;  // rounded down, so that texts need no more room than was measured
  return font;
}

}  // namespace vantor::win32
