// The bar under real keys and a real mouse: its line, and where it stands.

#include <doctest/doctest.h>

#include <sstream>

#include "desktop/Program.h"

namespace vantor::desktop {
namespace {

int TwipsPerPixel() {
  HDC const screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return 1440 / dpi;
}

bool Near(HWND window, POINT place) {
  const RECT bounds = window::Bounds(window);
  return abs(bounds.left - place.x) <= 2 && abs(bounds.top - place.y) <= 2;
}

/// Drags the bar by the gap between its last two buttons so that its corner would come to a point.
void DragTo(const Program& program, POINT to) {
  const RECT bar = window::Bounds(program.Bar());
  HWND const exit = program.Button("Exit");
  const POINT spot = {window::Bounds(exit).left - 2, window::Middle(exit).y};
  input::Drag(spot, {spot.x + to.x - bar.left, spot.y + to.y - bar.top});
}

}  // namespace

TEST_CASE("the bar is dragged, kept on the screen, saved where it would be restored, and there at the next start") {
  SKIP_UNLESS(UnderWine(), "a display that can be asked to drag");
  const Folder folder;
  const int twips = TwipsPerPixel();
  const POINT screen = {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  folder.WriteSettings({.Left = 32767, .Top = -32768});  // where no screen is
  {
    const Program program(folder);
    HWND bar = program.AwaitBar();
    const RECT bounds = window::Bounds(bar);
    CHECK(bounds.right < screen.x);
    CHECK(bounds.top == 0);
    const POINT farthest = {screen.x - (bounds.right - bounds.left) - 480 / twips,
                            screen.y - (bounds.bottom - bounds.top) - 600 / twips};
    DragTo(program, {farthest.x + 30, farthest.y + 30});
    CHECK_BECOMES(Near(bar, farthest), true);
    DragTo(program, {120, 90});
    CHECK_BECOMES(Near(bar, {120, 90}), true);
    program.AwaitBar();
    program.Exit();
  }
  int left = 0;
  int top = 0;
  std::string others;
  std::istringstream saved(folder.Data("Set"));
  saved >> others >> others >> others >> others >> others >> left >> top;
  CHECK(abs(left - 120 * twips) <= 2 * twips);
  CHECK(abs(top - 90 * twips) <= 2 * twips);
  const Program again(folder);
  HWND bar = again.AwaitBar();
  CHECK(window::Bounds(bar).left == left / twips);
  CHECK(window::Bounds(bar).top == top / twips);
  input::Press(VK_F9);
  CHECK_BECOMES(window::IsMinimised(bar), true);
  PostMessageW(bar, WM_CLOSE, 0, 0);
  CHECK(again.AwaitEnd() == 0);
  CHECK(folder.Data("Set") == folder.Saved({.Left = left, .Top = top}));
}

TEST_CASE("the bar climbs back above other windows, and comes along when the screen gets smaller") {
  const Folder folder;
  const int twips = TwipsPerPixel();
  folder.WriteSettings({.Left = 740 * twips, .Top = 950 * twips});
  const Program program(folder);
  HWND bar = program.AwaitBar();
  CHECK_BECOMES(window::IsTopMost(bar), true);
  HWND other = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"STATIC", L"other", WS_POPUP, 0, 0, 1280, 1024,
                               nullptr, nullptr, nullptr, nullptr);
  ShowWindow(other, SW_SHOWNOACTIVATE);
  SetWindowPos(other, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  CHECK(window::IsAbove(other, bar));
  CHECK_BECOMES(window::IsAbove(bar, other), true);
  // Another copy takes the window before the application's for the bar.
  CHECK_BECOMES(GetWindow(FindWindowA("ThunderRT6Main", "Vantor Orbel"), GW_HWNDPREV) == bar, true);
  DestroyWindow(other);

  DEVMODEW mode = {};
  mode.dmSize = sizeof mode;
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = 1024;
  mode.dmPelsHeight = 768;
  SKIP_UNLESS(GetSystemMetrics(SM_CXSCREEN) > 1024, "a large screen");
  SKIP_UNLESS(ChangeDisplaySettingsW(&mode, CDS_TEST) == DISP_CHANGE_SUCCESSFUL, "a display with two modes");
  CHECK(Near(bar, {740, 950}));
  REQUIRE(ChangeDisplaySettingsW(&mode, 0) == DISP_CHANGE_SUCCESSFUL);
  CHECK(Eventually([bar, twips] {
    const RECT place = window::Bounds(bar);
    return place.right <= 1024 - 480 / twips && place.bottom <= 768 - 600 / twips;
  }));
  ChangeDisplaySettingsW(nullptr, 0);
  CHECK_BECOMES(GetSystemMetrics(SM_CXSCREEN) > 1024, true);
}

}  // namespace vantor::desktop
