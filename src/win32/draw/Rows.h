#pragma once

#include "form/RowList.h"
#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"

namespace vantor::win32 {

/// How a row is highlighted.
enum class RowState { Plain, Hot, Current };

/// Draws a row over the whole canvas: its text with a line under the marked part, and the detail after it, smaller and
/// fainter. Texts that are too long are shortened with an ellipsis, a path in the middle.
void DrawMarkedRow(Canvas& canvas, const form::Row& row, RowState state, COLORREF background, COLORREF textColor,
                   const Theme& theme, int dpi);

}  // namespace vantor::win32
