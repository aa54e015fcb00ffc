#include "win32/window/AccessibleState.h"

#include <oleacc.h>

#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

AccessibleState StateOf(const ControlWindow& window) {
  const form::Control& control = window.Control();
  AccessibleState state;
  state.Name = window.SpokenName();
  const std::size_t key = control.ToolTip().find(L"---");
  if (key != std::wstring::npos) state.Shortcut = control.ToolTip().substr(key + 3);
  if (control.IsFocusable() && control.TabStop()) state.State |= STATE_SYSTEM_FOCUSABLE;
  if (GetFocus() == window.Hwnd()) state.State |= STATE_SYSTEM_FOCUSED;
  if (IsWindowVisible(window.Hwnd()) == FALSE) state.State |= STATE_SYSTEM_INVISIBLE;
  for (const form::Control* around = &control; around != nullptr; around = around->Container()) {
    if (!around->Enabled()) state.State |= STATE_SYSTEM_UNAVAILABLE;
  }
  window.Describe(state);
  return state;
}

AccessibleState StateOf(const FormWindow& window) {
  const form::Form& form = window.Form();
  AccessibleState state;
  state.Role = form.BorderStyle() == form::BorderStyle::Dialog ? ROLE_SYSTEM_DIALOG : ROLE_SYSTEM_CLIENT;
  state.Name = form.Caption();
  state.State = STATE_SYSTEM_FOCUSABLE;
  if (!form.Visible()) state.State |= STATE_SYSTEM_INVISIBLE;
  if (IsWindowEnabled(window.Hwnd()) == FALSE) state.State |= STATE_SYSTEM_UNAVAILABLE;
  return state;
}

std::optional<AccessibleState> StateOf(HWND handle) {
  if (const ControlWindow* control = ControlWindow::From(handle)) {
    if (!control->Owner().Retired()) return StateOf(*control);
  } else if (const FormWindow* form = FormWindow::From(handle)) {
    if (!form->Retired()) return StateOf(*form);
  }
  return {};
}

ControlWindow* WindowWithParts(HWND handle) {
  ControlWindow* const window = ControlWindow::From(handle);
  return window != nullptr && !window->Owner().Retired() && window->PartCount() >= 0 ? window : nullptr;
}

void ActOn(HWND handle) {
  ControlWindow* const window = ControlWindow::From(handle);
  if (window != nullptr && !window->Owner().Retired()) window->Act();
}

}  // namespace vantor::win32
