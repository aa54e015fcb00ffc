// desktop: --screen 640x480x24
// A screen that is too small is refused.

#include <doctest/doctest.h>

#include "desktop/Program.h"
#include "desktop/Wine.h"

namespace vantor::desktop {

TEST_CASE("a small screen is refused, and nothing is written") {
  SKIP_UNLESS(GetSystemMetrics(SM_CXSCREEN) < 800, "a small screen");
  const Folder folder;
  Program program(folder);
  program.AwaitMessage();
  CHECK(program.MessageText().find(
            "Screen resolution must be at least 1024x768 for Vantor to run correctly. Since your "
            "screen resolution is smaller than that, Vantor will will exit now.\n") != std::string::npos);
  program.AnswerMessage();
  program.AwaitEnd();
  CHECK(folder.Read("Vantor\\Set.Orbel") == "(none)");
}

}  // namespace vantor::desktop
