#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "form/Button.h"
#include "state/Pictures.h"

namespace vantor::panel {

/// The indexes of the CommandMenu buttons, from left to right, and of their panels.
namespace menu {
inline constexpr std::size_t Add = 0;
inline constexpr std::size_t Open = 1;
inline constexpr std::size_t List = 2;
inline constexpr std::size_t Companions = 3;  // the maker's other programs
inline constexpr std::size_t Options = 4;
inline constexpr std::size_t Help = 5;
inline constexpr std::size_t Code = 6;
inline constexpr std::size_t Count = 7;
}  // namespace menu

/// How a button looks while its panel is closed or open.
struct MenuFace {
  std::wstring_view Caption;
  form::Picture Picture;
  form::ButtonState State = form::ButtonState::Plain;
};

struct MenuButton {
  MenuFace Closed;
  std::wstring_view ToolTip;  // after "---" comes the key that does the same: F2 for the first button and so on
};

inline constexpr std::array<MenuButton, menu::Count> MenuButtons{{
    {{L"+", {form::Background::Normal, state::picture::Add}}, L"Show | Hide Add To List---F2"},
    {{L">", {form::Background::Normal, state::picture::Open}}, L"Show | Hide Open---F3"},
    {{L"L", {form::Background::Normal, state::picture::List}}, L"Show | Hide Open From List---F4"},
    {{L"!", {form::Background::Normal, state::picture::Companions}}, L"Show | Hide Run (Orbel's Program)---F5"},
    {{L"P", {form::Background::Normal, state::picture::Preferences}}, L"Show | Hide Preferences---F6"},
    {{L"?", {form::Background::Normal, state::picture::Help}}, L"Show | Hide Help---F7"},
    {{L"C", {form::Background::Normal, state::picture::Code}}, L"Show | Hide Code List---F8"},
}};
inline constexpr std::wstring_view OpenCaption = L"||";  // the drawing stays the same

}  // namespace vantor::panel
