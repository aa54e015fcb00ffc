#include "win32/window/Reading.h"

#include <oleacc.h>

#include "form/Button.h"
#include "form/ListControl.h"
#include "form/Static.h"
#include "form/TextBox.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

namespace {

using form::ControlKind;
using form::Picture;

void ReadButton(const form::CommandButton& button, Reading& reading) {
  reading.Role = ROLE_SYSTEM_PUSHBUTTON;
  reading.Action = L"Press";
  switch (button.Picture()) {
    case Picture::ButtonOpen:
      reading.State |= STATE_SYSTEM_PRESSED;
      break;
    case Picture::FaceUnfold:
      reading.State |= STATE_SYSTEM_COLLAPSED;
      break;
    case Picture::FaceFold:
      reading.State |= STATE_SYSTEM_EXPANDED;
      break;
    default:
      break;
  }
}

void ReadFrame(const form::Frame& frame, Reading& reading) {
  // One with a ground of its own is a banner that tells something.
  const bool banner = frame.Border() && frame.BackColor() != form::Color::ButtonFace;
  reading.Role = banner ? ROLE_SYSTEM_ALERT : frame.Border() ? ROLE_SYSTEM_GROUPING : ROLE_SYSTEM_PANE;
}

void ReadCombo(const form::ListControl& list, bool dropped, Reading& reading) {
  reading.Role = ROLE_SYSTEM_COMBOBOX;
  reading.Value = list.Text();
  reading.State |= STATE_SYSTEM_HASPOPUP | (dropped ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
  reading.Action = dropped ? L"Close" : L"Open";
}

void ReadChoice(bool chosen, long role, const wchar_t* action, Reading& reading) {
  reading.Role = role;
  if (chosen) reading.State |= STATE_SYSTEM_CHECKED;
  reading.Action = action;
}

void ReadKind(const ControlWindow& window, Reading& reading) {
  const form::Control& control = window.Control();
  switch (control.Kind()) {
    case ControlKind::TextBox: {
      const auto& box = static_cast<const form::TextBox&>(control);
      reading.Role = ROLE_SYSTEM_TEXT;
      reading.Value = box.Text();
      if (box.Locked()) reading.State |= STATE_SYSTEM_READONLY;
      return;
    }
    case ControlKind::CommandButton:
      return ReadButton(static_cast<const form::CommandButton&>(control), reading);
    case ControlKind::CheckBox: {
      const bool checked = static_cast<const form::ChoiceButton&>(control).Value();
      return ReadChoice(checked, ROLE_SYSTEM_CHECKBUTTON, checked ? L"Uncheck" : L"Check", reading);
    }
    case ControlKind::OptionButton:
      return ReadChoice(static_cast<const form::ChoiceButton&>(control).Value(), ROLE_SYSTEM_RADIOBUTTON, L"Check",
                        reading);
    case ControlKind::ComboBox:
    case ControlKind::DriveList:
      return ReadCombo(static_cast<const form::ListControl&>(control),
                       SendMessageW(window.Hwnd(), CB_GETDROPPEDSTATE, 0, 0) != 0, reading);
    case ControlKind::ListBox:
    case ControlKind::FolderList:
    case ControlKind::FileList:
      reading.Role = ROLE_SYSTEM_LIST;
      return;
    case ControlKind::Frame:
      return ReadFrame(static_cast<const form::Frame&>(control), reading);
    case ControlKind::Label:
      reading.Role = ROLE_SYSTEM_STATICTEXT;
      reading.State |= STATE_SYSTEM_READONLY;
      return;
    default:
      reading.Role = ROLE_SYSTEM_GRAPHIC;
      if (window.ShownPicture() == Picture::None) reading.State |= STATE_SYSTEM_INVISIBLE;
      return;
  }
}

}  // namespace

Reading ReadingOf(const ControlWindow& window) {
  const form::Control& control = window.Control();
  Reading reading;
  reading.Name = window.SpokenName();
  const std::size_t key = control.ToolTip().find(L"---");
  if (key != std::wstring::npos) reading.Shortcut = control.ToolTip().substr(key + 3);
  if (control.IsFocusable() && control.TabStop()) reading.State |= STATE_SYSTEM_FOCUSABLE;
  if (GetFocus() == window.Hwnd()) reading.State |= STATE_SYSTEM_FOCUSED;
  if (IsWindowVisible(window.Hwnd()) == FALSE) reading.State |= STATE_SYSTEM_INVISIBLE;
  for (const form::Control* around = &control; around != nullptr; around = around->Container()) {
    if (!around->Enabled()) reading.State |= STATE_SYSTEM_UNAVAILABLE;
  }
  ReadKind(window, reading);
  return reading;
}

Reading ReadingOf(const FormWindow& window) {
  const form::Form& form = window.Form();
  Reading reading;
  reading.Role = form.BorderStyle() == form::BorderStyle::Dialog ? ROLE_SYSTEM_DIALOG : ROLE_SYSTEM_CLIENT;
  reading.Name = form.Caption();
  reading.State = STATE_SYSTEM_FOCUSABLE;
  if (!form.Visible()) reading.State |= STATE_SYSTEM_INVISIBLE;
  if (IsWindowEnabled(window.Hwnd()) == FALSE) reading.State |= STATE_SYSTEM_UNAVAILABLE;
  return reading;
}

std::optional<Reading> ReadingOf(HWND handle) {
  if (const ControlWindow* control = ControlWindow::From(handle)) {
    if (!control->Owner().Retired()) return ReadingOf(*control);
  } else if (const FormWindow* form = FormWindow::From(handle)) {
    if (!form->Retired()) return ReadingOf(*form);
  }
  return {};
}

void ActOn(HWND handle) {
  const ControlWindow* const window = ControlWindow::From(handle);
  if (window == nullptr || window->Owner().Retired()) return;
  switch (window->Control().Kind()) {
    case ControlKind::CommandButton:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      PostMessageW(GetParent(handle), WM_COMMAND, MAKEWPARAM(0, BN_CLICKED), reinterpret_cast<LPARAM>(handle));
      break;
    case ControlKind::ComboBox:
    case ControlKind::DriveList:
      PostMessageW(handle, CB_SHOWDROPDOWN, SendMessageW(handle, CB_GETDROPPEDSTATE, 0, 0) == 0, 0);
      break;
    default:
      break;
  }
}

}  // namespace vantor::win32
