#pragma once

#include "form/Geometry.h"

namespace vantor::panel {

/// The place for a panel of this size: below the bar, or above or beside it if there is no room, or else where it
/// covers as little of the bar as possible; always within the work area of the bar's screen if that is large enough.
/// Twips.
[[nodiscard]] form::Rect PlacePanel(const form::Rect& bar, form::Size panel, const form::Rect& workArea);

}  // namespace vantor::panel
