#pragma once

#include "form/Geometry.h"

/// The grid that the bar, the panels and the messages keep to. Twips.
namespace vantor::form::grid {

// Heights are the usual ones: what a control gets is its HeightFor them.

inline constexpr Twips Margin = 120;       // inside a frame's edges, and between frames
inline constexpr Twips Gap = 60;           // between things that belong together
inline constexpr Twips FrameTop = 240;     // from the top of a frame with a caption to what is in it
inline constexpr Twips LineHeight = 315;   // of a box with one line in it
inline constexpr Twips CheckHeight = 255;  // of a check box or an option button
inline constexpr Twips ButtonHeight = 390;
inline constexpr Twips ColumnGap = 360;
inline constexpr Twips BarRoom = 600;  // of the screen's height, for the bar next to a panel or a message
inline constexpr Twips SectionGap = 180;

}  // namespace vantor::form::grid
