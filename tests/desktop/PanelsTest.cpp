// desktop: --screen 800x600x24
// Where the panels stand on the smallest screen, and what the desktop shortcut holds.

#include <doctest/doctest.h>

#include "desktop/System.h"

namespace vantor::desktop {
namespace {

const std::pair<WORD, std::string> Panels[] = {{VK_F2, "Add To List"}, {VK_F3, "Open"}, {VK_F4, "List"},
                                               {VK_F6, "Options"},     {VK_F7, "Help"}, {VK_F8, "Code"}};

}  // namespace

TEST_CASE("the open panel follows the bar, and closes when the bar is minimised as from its taskbar button") {
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  const Panel help(program, VK_F7, "Help");
  help.Open();
  SetWindowPos(bar, nullptr, 20, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  CHECK_BECOMES(window::Bounds(help.Find()).top, window::Bounds(bar).bottom);
  CHECK(window::Bounds(help.Find()).left == 20);
  PostMessageW(bar, WM_SYSCOMMAND, SC_MINIMIZE, 0);
  CHECK_BECOMES(help.Find() == nullptr, true);
  CHECK(window::IsMinimised(bar));
  OpenIcon(bar);
  SetForegroundWindow(bar);
  CHECK_BECOMES(window::Focus(bar), program.TextMain());
  CHECK_BECOMES(window::IsTopMost(bar), true);
}

TEST_CASE("near the screen's edges a panel opens where it fits, and never under the bar") {
  const RECT screen{0, 0, 800, 600};
  const struct { int Left, Top; } places[] = {{4200, 0}, {0, 8400}, {5000, 4000}};
  for (const auto& at : places) {
    const Folder folder;
    folder.WriteSettings({.WebUpper = 0, .Left = at.Left, .Top = at.Top});
    folder.WriteData("ListWeb", ListBytes({{"News", "http://news.example"}}));
    const Program program(folder);
    const RECT bar = window::Bounds(program.AwaitBar());
    for (const auto& shown : Panels) {
      CAPTURE(shown.second + std::to_string(at.Top));
      const Panel panel(program, shown.first, shown.second);
      panel.Open();
      const RECT place = window::Bounds(panel.Find());
      RECT both;
      UnionRect(&both, &place, &screen);
      CHECK(EqualRect(&both, &screen));
      if (IntersectRect(&both, &place, &bar)) CHECK(window::IsAbove(panel.Find(), program.Bar()));
    }
  }
}

TEST_CASE("the desktop shortcut starts the program, in its folder, by Ctrl+Shift+L") {
  const std::string file = SystemFolder(CSIDL_DESKTOPDIRECTORY) + "\\Vantor.lnk";
  DeleteFileW(Wide(file).c_str());
  const Folder folder;
  folder.WriteSettings({});
  const Program program(folder);
  program.AwaitBar();
  const Panel preferences(program, VK_F6, "Options");
  preferences.Open();
  preferences.Click("Create Desktop Shortcut");
  program.ExpectMessage("A shortcut for Vantor has been placed on your Desktop.");
  const std::string link = BytesOf(file);
  const std::string path = folder.Path("Vantor.exe");
  for (const std::string& part : {path, Utf16(path), Utf16(folder.Path() + "\\"), Utf16("Vantor")})
    CHECK(link.find(part) != std::string::npos);
  CHECK(link.substr(60, 4) == std::string("\1\0\0\0", 4));  // a window of the usual size
  CHECK(link.substr(64, 2) == "L\3");                       // Ctrl+Shift+L
  DeleteFileW(Wide(file).c_str());
}

}  // namespace vantor::desktop
