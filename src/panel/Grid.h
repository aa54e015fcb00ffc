#pragma once

#include "form/Geometry.h"

namespace vantor::panel {

// The grid that the panels keep to. Twips. Heights are the usual ones: what a control gets is its HeightFor them.

inline constexpr form::Twips Margin = 120;       // inside a frame's edges, and between frames
inline constexpr form::Twips Gap = 60;           // between things that belong together
inline constexpr form::Twips FrameTop = 240;     // from the top of a frame with a caption to what is in it
inline constexpr form::Twips LineHeight = 315;   // of a box with one line in it
inline constexpr form::Twips CheckHeight = 255;  // of a check box or an option button
inline constexpr form::Twips ColumnGap = 360;
inline constexpr form::Twips SectionGap = 180;

}  // namespace vantor::panel
