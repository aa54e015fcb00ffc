// desktop: --screen 640x480x24

#include <doctest/doctest.h>

#include "desktop/Program.h"

namespace vantor::desktop {

TEST_CASE("a small screen is refused, and nothing is written") {
  SKIP_UNLESS(GetSystemMetrics(SM_CXSCREEN) < 800, "a small screen");
  const Folder folder;
  const Program program(folder);
  program.ExpectMessage(
      "Screen resolution must be at least 1024x768 for Vantor to run correctly. Since your screen resolution is "
      "smaller than that, Vantor will will exit now.\n");
  (void)program.AwaitEnd();
  CHECK(folder.Data("Set") == "(none)");
}

}  // namespace vantor::desktop
