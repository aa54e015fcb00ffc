// Where the bar stands: dragged, saved, brought back, and above other windows.

#include <doctest/doctest.h>

#include <cstdio>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {
namespace {

int TwipsPerPixel() {
  HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return 1440 / dpi;
}

POINT Corner(HWND window) {
  const RECT bounds = window::Bounds(window);
  return {bounds.left, bounds.top};
}

/// A point of the bar where there is no control.
POINT FreeSpot(HWND bar) {
  const RECT bounds = window::Bounds(bar);
  for (LONG x = bounds.right - 2; x > bounds.left; --x) {
    const POINT at = {x, (bounds.top + bounds.bottom) / 2};
    bool free = true;
    for (HWND control : window::Controls(bar)) {
      const RECT place = window::Bounds(control);
      if (PtInRect(&place, at) && !window::IsFrame(control)) free = false;
    }
    if (free) return at;
  }
  throw std::runtime_error("the bar has no free spot");
}

/// Drags the bar so that its corner would come to a point.
void DragTo(HWND bar, POINT to) {
  const POINT spot = FreeSpot(bar);
  const POINT corner = Corner(bar);
  input::Drag(spot, {spot.x + to.x - corner.x, spot.y + to.y - corner.y});
}

bool Near(HWND window, POINT place) {
  const POINT corner = Corner(window);
  return abs(corner.x - place.x) <= 2 && abs(corner.y - place.y) <= 2;
}

}  // namespace

TEST_CASE("a dragged bar is kept on the screen, and stands there at the next start") {
  const Folder folder;
  folder.WriteSettings({.Left = 3000, .Top = 3000});
  const POINT place = {120, 90};
  const int twips = TwipsPerPixel();
  {
    Program program(folder);
    HWND bar = program.AwaitBar();
    CHECK(Corner(bar).x == 3000 / twips);
    const RECT bounds = window::Bounds(bar);
    const POINT farthest = {GetSystemMetrics(SM_CXSCREEN) - (bounds.right - bounds.left) - 480 / twips,
                            GetSystemMetrics(SM_CYSCREEN) - (bounds.bottom - bounds.top) - 600 / twips};
    DragTo(bar, {-60, 300});
    CHECK_BECOMES(Near(bar, {0, 300}), true);
    CHECK(Corner(bar).x == 0);
    DragTo(bar, {farthest.x + 30, farthest.y + 30});
    CHECK_BECOMES(Near(bar, farthest), true);
    DragTo(bar, {place.x, place.y});
    CHECK_BECOMES(Near(bar, place), true);
    program.AwaitBar();
    program.Exit();
  }
  int values[7] = {};
  sscanf(folder.Read("Vantor\\Set.Orbel").c_str(), "%d %d %d %d %d %d %d", &values[0], &values[1], &values[2],
         &values[3], &values[4], &values[5], &values[6]);
  CHECK(abs(values[5] - place.x * twips) <= 2 * twips);
  CHECK(abs(values[6] - place.y * twips) <= 2 * twips);

  Program again(folder);
  const POINT corner = Corner(again.AwaitBar());
  CHECK(corner.x == values[5] / twips);
  CHECK(corner.y == values[6] / twips);
}

TEST_CASE("a saved place that no screen shows is brought back") {
  const Folder folder;
  folder.WriteSettings({.Left = 32767, .Top = -32768});
  Program program(folder);
  const RECT bounds = window::Bounds(program.AwaitBar());
  CHECK(bounds.right < GetSystemMetrics(SM_CXSCREEN));
  CHECK(bounds.top == 0);
}

TEST_CASE("the bar comes along when the screen gets smaller") {
  DEVMODEW mode = {};
  mode.dmSize = sizeof mode;
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = 1024;
  mode.dmPelsHeight = 768;
  SKIP_UNLESS(GetSystemMetrics(SM_CXSCREEN) > 1024, "a large screen");
  SKIP_UNLESS(ChangeDisplaySettingsW(&mode, CDS_TEST) == DISP_CHANGE_SUCCESSFUL, "a display with two modes");
  const Folder folder;
  const int twips = TwipsPerPixel();
  folder.WriteSettings({.Left = 740 * twips, .Top = 950 * twips});
  Program program(folder);
  HWND bar = program.AwaitBar();
  CHECK(Near(bar, {740, 950}));
  REQUIRE(ChangeDisplaySettingsW(&mode, 0) == DISP_CHANGE_SUCCESSFUL);
  CHECK(Eventually([&] {
    const RECT place = window::Bounds(bar);
    return place.right <= 1024 - 480 / twips && place.bottom <= 768 - 600 / twips;
  }));
  ChangeDisplaySettingsW(nullptr, 0);
  CHECK_BECOMES(GetSystemMetrics(SM_CXSCREEN) > 1024, true);
}

TEST_CASE("a minimised bar saves the place that it would be restored to") {
  const Folder folder;
  folder.WriteSettings({.Left = 1500, .Top = 900});
  Program program(folder);
  HWND bar = program.AwaitBar();
  input::Press(VK_F9);
  CHECK_BECOMES(IsIconic(bar) != FALSE, true);
  PostMessageW(bar, WM_CLOSE, 0, 0);
  CHECK(program.AwaitEnd() == 0);
  CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({.Left = 1500, .Top = 900}));
}

TEST_CASE("the bar climbs back above other windows when it is to stay on top") {
  for (const bool stays : {true, false}) {
    CAPTURE(stays);
    const Folder folder;
    folder.WriteSettings({.OptionMask = stays ? 2 : 0, .Left = 1500, .Top = 900});
    Program program(folder);
    HWND bar = program.AwaitBar();
    CHECK_BECOMES(window::IsTopMost(bar), stays);
    HWND other = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"STATIC", L"other", WS_POPUP, 0, 0, 800, 400,
                                 nullptr, nullptr, nullptr, nullptr);
    ShowWindow(other, SW_SHOWNOACTIVATE);
    SetWindowPos(other, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    CHECK(window::IsAbove(other, bar));
    // Two ticks of its timer would be enough.
    CHECK(Eventually([&] { return window::IsAbove(bar, other); }, stays ? 20000 : 2500) == stays);
    // Another copy takes the window before the application's for the bar.
    if (stays) CHECK_BECOMES(GetWindow(FindWindowA("ThunderRT6Main", "Vantor Orbel"), GW_HWNDPREV) == bar, true);
    DestroyWindow(other);
    CHECK(window::IsTopMost(bar) == stays);
  }
}

}  // namespace vantor::desktop
