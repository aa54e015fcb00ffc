#include "panel/PanelPlace.h"

#include <algorithm>

namespace vantor::panel {

form::Rect PlacePanel(const form::Rect& bar, form::Size panel, const form::Rect& workArea) {
  const auto on = [&](form::Twips left, form::Twips top) {
    return form::Rect{form::Within(left, panel.Width, workArea.Left, workArea.Right()),
                      form::Within(top, panel.Height, workArea.Top, workArea.Bottom()), panel.Width, panel.Height};
  };
  const form::Rect places[] = {on(bar.Left, bar.Bottom()), on(bar.Left, bar.Top - panel.Height),
                               on(bar.Right(), bar.Top), on(bar.Left - panel.Width, bar.Top)};
  return *std::ranges::min_element(places, {}, [&](const form::Rect& place) { return SharedArea(place, bar); });
}

}  // namespace vantor::panel
