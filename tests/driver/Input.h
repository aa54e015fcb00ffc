#pragma once

#include <windows.h>

#include <string>

#include "driver/Window.h"

/// Keyboard and mouse input as from a person: Windows decides which window gets it.
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
inline void PressControl(WORD key) {
  Key(VK_CONTROL, 0, 0);
  Press(key);
  Key(VK_CONTROL, 0, KEYEVENTF_KEYUP);
}

/// Types a text with the keys of the keyboard layout. Characters that need more than one key are sent as by an input
/// method: under Wine, Shift may be released before the key if the state of the X server's keys arrives in between.
inline void Type(const std::wstring& text) {
  for (const wchar_t character : text) {
    const SHORT key = VkKeyScanW(character);
    if (key >> 8 == 0) {
      Press(static_cast<WORD>(key));
      continue;
    }
    Key(0, character, KEYEVENTF_UNICODE);
    Key(0, character, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
  }
}

/// Copies a text to the clipboard and pastes it.
inline void Paste(const std::wstring& text) {
  Await("the clipboard", [] { return OpenClipboard(nullptr) != FALSE; });
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
  CopyMemory(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
  PressControl('V');
}

/// Moves the mouse, and moves or presses its left button there.
inline void Mouse(POINT at, DWORD flags = 0) {
  // Whole pixels, at the middle of each.
  const auto place = [](LONG pixel, int size) { return static_cast<DWORD>((pixel * 65536 + 32768) / size); };
  mouse_event(flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, place(at.x, GetSystemMetrics(SM_CXSCREEN)),
              place(at.y, GetSystemMetrics(SM_CYSCREEN)), 0, 0);
}
/// Turns the wheel at the position of the mouse by a multiple of 3 rows; positive is down.
inline void Wheel(int rows) {
  const int turn = -rows / 3 * WHEEL_DELTA;
  mouse_event(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(turn), 0);
}
inline void Hold(POINT at) {
  Mouse(at);
  Mouse(at, MOUSEEVENTF_LEFTDOWN);
}
inline void LetGo(POINT at) { Mouse(at, MOUSEEVENTF_LEFTUP); }

/// One click, or a double click. Clicks of two calls never form a double click: the second is slightly displaced.
inline void Click(POINT at, bool twice = false) {
  static POINT last{};
  if (at.x == last.x && at.y == last.y) at.x -= 8;
  last = at;
  for (int time = twice ? 2 : 1; time > 0; --time) {
    Hold(at);
    LetGo(at);
  }
}
/// Clicks the middle of a window once nothing covers it: a form that unfolds may not have its final size yet.
inline void Click(HWND window, bool twice = false) {
  Await("the control to be where the mouse is", [window] {
    HWND const there = WindowFromPoint(window::Middle(window));
    return GetAncestor(there, GA_ROOT) == GetAncestor(window, GA_ROOT);
  });
  Click(window::Middle(window), twice);
}

}  // namespace vantor::desktop::input
