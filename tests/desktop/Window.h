#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// Windows of other programs, looked at from outside.
namespace vantor::desktop::window {

/// The title of a window or the content of a control, in UTF-8.
std::string Text(HWND window);
std::string ClassName(HWND window);
DWORD ProcessOf(HWND window);
/// The top-level windows of a process that are shown, minimised ones too.
std::vector<HWND> OfProcess(DWORD process);
/// The controls of a window that are shown, in its own order.
std::vector<HWND> Controls(HWND window);
/// The first control shown of a class whose text begins so; null when there is none.
HWND Control(HWND window, const std::string& className, const std::string& textBegin = {});

/// The controls of a class that are shown, from left to right and from top to bottom.
std::vector<HWND> OfClass(HWND window, const std::string& className);

/// Whether a control only surrounds others.
bool IsFrame(HWND control);

RECT Bounds(HWND window);
POINT Middle(HWND window);
/// The control of the window's program that has the focus; null when none has.
HWND FocusOf(HWND window);
/// The colour that is on the screen just inside the middle of a control's left edge, where it holds no text.
COLORREF Ground(HWND control);
/// The control, or the window itself, that has the input; null when another window is in the foreground.
HWND Focus(HWND window);
/// Whether the window has the input: it is in the foreground and it, or a control of it, has the focus.
bool HasInput(HWND window);
bool IsTopMost(HWND window);
/// Whether the first window stands somewhere above the second.
bool IsAbove(HWND upper, HWND lower);

}  // namespace vantor::desktop::window
