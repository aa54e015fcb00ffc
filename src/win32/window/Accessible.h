#pragma once

#include <windows.h>

#include <optional>

#include "win32/base/Com.h"

namespace vantor::win32 {

/// Answers a window's WM_GETOBJECT, by which screen readers ask what the window is, with an object that reports what
/// `StateOf` returns. Nothing if it asks for something else or the system lacks the library; then the window's class
/// answers. The library is loaded at the first question, so that it costs other users nothing.
[[nodiscard]] std::optional<LRESULT> AnswerAccessibility(HWND window, Apartment& com, WPARAM wParam, LPARAM lParam);

}  // namespace vantor::win32
