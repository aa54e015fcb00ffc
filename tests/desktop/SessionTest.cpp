// Other copies of the program, and the end of the session.

#include <doctest/doctest.h>

#include <cstdlib>

#include "desktop/Input.h"
#include "desktop/Program.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"
#include "desktop/Wine.h"

namespace vantor::desktop {

TEST_CASE("a second copy hands over to the first, minimised or covered, and ends") {
  const Folder folder;
  folder.WriteSettings({.Left = 600, .Top = 600});
  Program first(folder);
  HWND bar = first.AwaitBar();
  first.TypeLine("kept");
  for (const bool minimised : {true, false}) {
    CAPTURE(minimised);
    if (minimised) {
      input::Press(VK_F9);
      Await("the bar to be minimised", [bar] { return IsIconic(bar) != FALSE; });
    }
    Program second(folder);
    CHECK(second.AwaitEnd() == 0);
    CHECK_BECOMES(IsIconic(bar) != FALSE, false);
    CHECK(first.AwaitBar() == bar);
    CHECK(first.Line() == "kept");
  }
  first.Exit();

  // The way is free again.
  Program third(folder);
  third.AwaitBar();
}

TEST_CASE("the end of the Windows session saves like an exit") {
  const Folder folder;
  folder.WriteSettings({.WebUpper = 4});
  folder.Write("Vantor\\ListWeb.Orbel", ListBytes({{"One", "http://one"}}));
  Program program(folder);
  HWND bar = program.AwaitBar();
  if (UnderWine()) {
    CHECK(std::system("wineboot --end-session") == 0);
  } else {
    // What Windows sends, without ending the session of whoever runs this.
    CHECK(SendMessageW(bar, WM_QUERYENDSESSION, 0, 0) != 0);
    SendMessageW(bar, WM_ENDSESSION, TRUE, 0);
  }
  program.AwaitEnd();
  CHECK(folder.Read("Vantor\\Set.Orbel") == folder.Saved({.WebUpper = 0}));
}

}  // namespace vantor::desktop
