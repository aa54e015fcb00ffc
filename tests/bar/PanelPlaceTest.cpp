#include "bar/PanelPlace.h"

#include <doctest/doctest.h>

namespace vantor::bar {

TEST_CASE("A panel stands by the bar, and on the screen") {
  const form::Rect area{0, 0, 12000, 8600};
  const struct {
    form::Rect Bar, Place;
  } cases[] = {
      {{0, 0, 6000, 480}, {0, 480, 5040, 7700}},
      {{9000, 0, 6000, 480}, {6960, 480, 5040, 7700}},     // off the right edge
      {{300, 8100, 6000, 480}, {300, 400, 5040, 7700}},    // above
      {{300, 4000, 6000, 480}, {6300, 900, 5040, 7700}},   // no room but beside
      {{5900, 4000, 6000, 480}, {860, 900, 5040, 7700}},   // on the other side
      {{3000, 4000, 6000, 480}, {3000, 900, 5040, 7700}},  // over it
      {{0, 0, 6000, 480}, {6000, 0, 5040, 9000}},          // taller than the screen: from its top
  };
  for (const auto& c : cases) {
    CHECK(PlacePanel(c.Bar, {c.Place.Width, c.Place.Height}, area) == c.Place);
  }
}

}  // namespace vantor::bar
