#pragma once

#include <windows.h>

#include <string>

#include "desktop/Basics.h"
#include "desktop/Window.h"

/// Keys and mouse as a person uses them: everything goes to the window that Windows gives it to.
namespace vantor::desktop::input {

inline void Key(WORD key, WORD scan, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki = {key, scan, flags, 0, 0};
  SendInput(1, &input, sizeof input);
}

inline void Press(WORD key) {
  const auto scan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  Key(key, scan, 0);
  Key(key, scan, KEYEVENTF_KEYUP);
}

/// Types a text by the keys of the keyboard layout; letters that it lacks come as an input method sends them.
inline void Type(const std::string& text) {
  for (const wchar_t character : Wide(text)) {
    const SHORT key = VkKeyScanW(character);
    const int modifiers = key >> 8;
    if (key == -1 || modifiers > 1) {
      Key(0, character, KEYEVENTF_UNICODE);
      Key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
      continue;
    }
    if (modifiers == 1) Key(VK_SHIFT, 0, 0);
    Press(static_cast<WORD>(key & 0xFF));
    if (modifiers == 1) Key(VK_SHIFT, 0, KEYEVENTF_KEYUP);
  }
}

/// Moves the mouse, and moves or presses its left button there.
inline void Mouse(POINT at, DWORD flags = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  // Whole pixels, each aimed at its middle.
  input.mi.dx = (at.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
  input.mi.dy = (at.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
  input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof input);
}
inline void Hold(POINT at) {
  Mouse(at);
  Mouse(at, MOUSEEVENTF_LEFTDOWN);
}
inline void LetGo(POINT at) { Mouse(at, MOUSEEVENTF_LEFTUP); }

inline void Click(POINT at) {
  Hold(at);
  LetGo(at);
}
inline void Click(HWND window) { Click(window::Middle(window)); }
inline void DoubleClick(POINT at) {
  Click(at);
  Click(at);
}

/// Presses the left button at one point, moves and lets go at the other. Under Wine the window manager of the X display
/// moves windows, and looks at the display's own mouse only: there this drag is the display's. It first moves a little,
/// until the window is seen to follow, and then all the way.
inline void Drag(POINT from, POINT to) {
  if (!UnderWine()) {
    Hold(from);
    Mouse({(from.x + to.x) / 2, (from.y + to.y) / 2});
    Mouse(to);
    LetGo(to);
    return;
  }
  std::string commandLine = R"script(Z:\bin\bash -c "
xdotool mousemove $1 $2
eval $(xdotool getmouselocation --shell)
eval $(xdotool getwindowgeometry --shell $WINDOW)
left=$X top=$Y step=8
xdotool mousedown 1
while [ $X.$Y = $left.$top -a $SECONDS -lt 10 ]; do
  step=$((17 - step))
  xdotool mousemove $(($1 + step)) $2
  eval $(xdotool getwindowgeometry --shell $WINDOW)
done
xdotool mousemove $(($3 + step - X + left)) $(($4 - Y + top))
xdotool mouseup 1" drag)script";
  for (const LONG number : {from.x, from.y, to.x, to.y}) commandLine += ' ' + std::to_string(number);
  CloseHandle(Start(commandLine).hProcess);  // nobody can wait for a program of the host
}

}  // namespace vantor::desktop::input
