#include "panel/PanelPlace.h"

#include <algorithm>

namespace vantor::panel {

namespace {

using form::Twips;

/// The start nearest to `wanted` at which the length lies in the area; the area's own where it is longer.
Twips Within(Twips wanted, Twips length, Twips areaStart, Twips areaLength) {
  return std::max(std::min(wanted, areaStart + areaLength - length), areaStart);
}

}  // namespace

form::Rect PlacePanel(const form::Rect& bar, form::Size panel, const form::Rect& workArea) {
  form::Rect place{Within(bar.Left, panel.Width, workArea.Left, workArea.Width), bar.Bottom(), panel.Width,
                   panel.Height};
  if (place.Bottom() <= workArea.Bottom() && place.Top >= workArea.Top) return place;
  place.Top = bar.Top - panel.Height;
  if (place.Top >= workArea.Top && place.Bottom() <= workArea.Bottom()) return place;

  place.Top = Within(bar.Top, panel.Height, workArea.Top, workArea.Height);
  if (bar.Right() + panel.Width <= workArea.Right()) {
    place.Left = bar.Right();
  } else if (bar.Left - panel.Width >= workArea.Left) {
    place.Left = bar.Left - panel.Width;
  }
  return place;
}

}  // namespace vantor::panel
