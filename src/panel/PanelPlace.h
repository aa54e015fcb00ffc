#pragma once

#include "form/Geometry.h"

namespace vantor::panel {

/// Where a panel of this size stands: below the bar, or above or beside it where there is no room, or where it covers
/// the least of the bar; always on the work area of the bar's screen as far as that is large enough. Twips.
[[nodiscard]] form::Rect PlacePanel(const form::Rect& bar, form::Size panel, const form::Rect& workArea);

}  // namespace vantor::panel
