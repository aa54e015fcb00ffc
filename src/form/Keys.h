#pragma once

namespace vantor::form {

/// Keys that handlers ask for by name. The values are Windows' virtual-key codes.
enum class Key : int {
  None = 0,
  Back = 0x08,
  Tab = 0x09,
  Enter = 0x0D,
  Escape = 0x1B,
  Space = 0x20,
  PageUp = 0x21,
  PageDown = 0x22,
  End = 0x23,
  Home = 0x24,
  Left = 0x25,
  Up = 0x26,
  Right = 0x27,
  Down = 0x28,
  Delete = 0x2E,
  A = 0x41,
  C = 0x43,
  V = 0x56,
  X = 0x58,
  Z = 0x5A,
  F1 = 0x70,
  F2,
  F3,
  F4,
  F5,
  F6,
  F7,
  F8,
  F9,
  F10,
  F11,
  F12,
};

/// Characters that KeyPress hands over for the keys of the same name.
inline constexpr wchar_t CharBackspace = 8;
inline constexpr wchar_t CharEnter = 13;
inline constexpr wchar_t CharEscape = 27;

enum class MouseButton { None, Left, Right };

}  // namespace vantor::form
