#pragma once

#include <windows.h>

#include <string>

/// Keys and mouse as a person uses them: everything goes to the window that Windows gives it to.
namespace vantor::desktop::input {

/// Types a text by the keys of the keyboard layout; letters that it lacks come as an input method sends them.
void Type(const std::string& text);
void Press(WORD key);

void Click(POINT at);
void DoubleClick(POINT at);
/// The parts of a drag: the left button goes down, the mouse moves with it, the button goes up.
void Hold(POINT at);
void Move(POINT to);
void LetGo(POINT at);
/// Presses the left button at one point, moves and lets go at the other.
void Drag(POINT from, POINT to);

}  // namespace vantor::desktop::input
