#include "panel/PanelPlace.h"

#include <algorithm>

namespace vantor::panel {

namespace {

using form::Twips;

/// The start nearest to `wanted` at which the length fits into the area; the start of the area if it is too long.
Twips Within(Twips wanted, Twips length, Twips areaStart, Twips areaLength) {
  return std::max(std::min(wanted, areaStart + areaLength - length), areaStart);
}

/// The size of the area that the two share.
double Covered(const form::Rect& one, const form::Rect& other) {
  return double(form::Overlap(one.Left, one.Right(), other.Left, other.Right())) *
         form::Overlap(one.Top, one.Bottom(), other.Top, other.Bottom());
}

}  // namespace

form::Rect PlacePanel(const form::Rect& bar, form::Size panel, const form::Rect& workArea) {
  const auto on = [&](Twips left, Twips top) {
    return form::Rect{Within(left, panel.Width, workArea.Left, workArea.Width),
                      Within(top, panel.Height, workArea.Top, workArea.Height), panel.Width, panel.Height};
  };
  const form::Rect places[] = {on(bar.Left, bar.Bottom()), on(bar.Left, bar.Top - panel.Height),
                               on(bar.Right(), bar.Top), on(bar.Left - panel.Width, bar.Top)};
  return *std::ranges::min_element(places, {}, [&](const form::Rect& place) { return Covered(place, bar); });
}

}  // namespace vantor::panel
