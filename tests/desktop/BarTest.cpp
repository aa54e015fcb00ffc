// The bar among other windows, and on a screen that changes.

#include "driver/Check.h"
#include "driver/Program.h"

namespace vantor::desktop {

TEST_CASE("the bar and its list climb back above other windows, and come along when the screen gets smaller") {
  const Folder folder;
  folder.WriteSettings({.WebUpper = 1, .Left = 11100, .Top = 14250});
  folder.WriteData(L"ListWeb", ListBytes({{L"One", L"http://one"}, {L"Other", L"http://other"}}));
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  program.Press(VK_F12);
  program.Type(L"w-o");
  CHECK_BECOMES(program.FormOf(L"ListMatches") != nullptr, true);
  CHECK_BECOMES(window::IsTopMost(bar), true);
  HWND const other = window::Make(WS_EX_TOPMOST | WS_EX_NOACTIVATE, {0, 0}, {1280, 1024});
  SetWindowPos(other, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  CHECK(window::IsAbove(other, bar));
  CHECK_BECOMES(window::IsAbove(bar, other), true);
  // Another copy takes the window in front of the application window for the bar.
  CHECK_BECOMES(GetWindow(FindWindowA("ThunderRT6Main", "Vantor Orbel"), GW_HWNDPREV) == bar, true);
  HWND const list = program.FormOf(L"ListMatches");
  CHECK(window::IsTopMost(list));
  CHECK_BECOMES(GetWindow(bar, GW_HWNDPREV) == list, true);
  CHECK(window::Bounds(list).bottom <= window::Bounds(bar).top);  // there is no room below
  DestroyWindow(other);

  SKIP_UNLESS(OwnDesktop() && GetSystemMetrics(SM_CXSCREEN) > 1024, "a large screen of the test's own");
  DEVMODEW mode = {};
  mode.dmSize = sizeof mode;
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = 1024;
  mode.dmPelsHeight = 768;
  REQUIRE(ChangeDisplaySettingsW(&mode, 0) == DISP_CHANGE_SUCCESSFUL);
  CHECK_BECOMES(window::Bounds(bar).right <= 1024 - 32 && window::Bounds(bar).bottom <= 768 - 40, true);
  ChangeDisplaySettingsW(nullptr, 0);
  CHECK_BECOMES(GetSystemMetrics(SM_CXSCREEN) > 1024, true);
}

TEST_CASE("the open panel follows the bar, and goes when the bar is minimised as from its taskbar button") {
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  program.Press(VK_F8);
  HWND const panel = program.AwaitForm(L"FrameCode");
  // Another program may move it like this.
  SetWindowPos(bar, nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  CHECK_BECOMES(window::Bounds(panel).top, window::Bounds(bar).bottom);
  CHECK(window::Bounds(panel).left == 20);
  PostMessageW(bar, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  CHECK_BECOMES(IsWindowVisible(panel), FALSE);
}

}  // namespace vantor::desktop
