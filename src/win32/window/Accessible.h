#pragma once

#include <windows.h>

#include <optional>

#include "win32/base/Com.h"

namespace vantor::win32 {

/// Answers a window's WM_GETOBJECT, by which screen readers ask what the window is, with an object that tells
/// what `StateOf` does. Nothing when the question is another one, or the system lacks what is needed; then the window's
/// class answers. The system's part is loaded with the first question, so that it costs nobody else anything.
[[nodiscard]] std::optional<LRESULT> AnswerAccessibility(HWND window, Apartment& com, WPARAM wParam, LPARAM lParam);

}  // namespace vantor::win32
