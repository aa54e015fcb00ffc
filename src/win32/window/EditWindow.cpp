#include "win32/window/EditWindow.h"

#include <windowsx.h>

#include <oleacc.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <utility>

#include "form/Scoped.h"
#include "win32/draw/Areas.h"
#include "win32/draw/Pictures.h"
#include "win32/draw/Text.h"

namespace vantor::win32 {

namespace {

constexpr WPARAM LongestText = 0x7FFFFFFE;
constexpr WPARAM CharControlBack = 0x7F;

struct Selection {
  DWORD Start = 0;
  DWORD End = 0;
};

/// Whether a message may change the selection.
bool MaySelect(UINT message) {
  return (message >= WM_KEYFIRST && message <= WM_KEYLAST) || (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
         message == EM_SETSEL || message == WM_SETFOCUS || message == WM_UNDO || message == EM_UNDO ||
         (message >= WM_CUT && message <= WM_CLEAR) || message == WM_COMMAND || message == WM_CONTEXTMENU;
}

/// Editing keys with Ctrl, and the messages by which the window class does what they are for.
struct EditingKey {
  form::Key Key;
  UINT Message;
};
constexpr EditingKey EditingKeys[] = {
    {form::Key::C, WM_COPY}, {form::Key::V, WM_PASTE}, {form::Key::X, WM_CUT}, {form::Key::Z, WM_UNDO}};

/// Whether a character comes from an editing key with Ctrl. Those are handled when the key goes down.
bool IsEditingCharacter(WPARAM character) {
  const auto comesFrom = [=](form::Key letter) { return character == static_cast<WPARAM>(letter) - L'A' + 1; };
  return character == CharControlBack || comesFrom(form::Key::A) ||
         std::ranges::any_of(EditingKeys, comesFrom, &EditingKey::Key);
}

/// Whether a key moves the caret when pressed without modifiers.
bool MovesCaret(WPARAM key) {
  return key >= VK_PRIOR && key <= VK_DOWN && GetKeyState(VK_SHIFT) >= 0 && GetKeyState(VK_CONTROL) >= 0;
}

}  // namespace

EditWindow::EditWindow(FormWindow& owner, form::TextBox& box)
    : ControlWindow(owner, box, {L"EDIT", WS_TABSTOP | ES_AUTOHSCROLL, box.Text()}), box_(box) {
  SendMessageW(Hwnd(), EM_SETLIMITTEXT, LongestText, 0);
  SendMessageW(Hwnd(), EM_SETREADONLY, box_.Locked() ? TRUE : FALSE, 0);
}

void EditWindow::Refresh() {
  ControlWindow::Refresh();
  // The margins around the text depend on the font.
  SetWindowPos(Hwnd(), nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  SendMessageW(Hwnd(), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  if (ShownText() != box_.Text()) ShowText();
  ShowSelection();
}

void EditWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_TEXT;
  state.Value = box_.Text();
  if (box_.Locked()) state.State |= STATE_SYSTEM_READONLY;
}

void EditWindow::Show(form::Property property) {
  if (property == form::Property::Text) ShowText();
  if (property == form::Property::Selection) ShowSelection();
}

void EditWindow::ShowText() {
  const form::Scoped showing(showing_, true);
  edited_ = false;
  SetWindowTextW(Hwnd(), box_.Text().c_str());
}

void EditWindow::ShowSelection() {
  const form::Scoped showing(showing_, true);
  SendMessageW(Hwnd(), EM_SETSEL, static_cast<WPARAM>(box_.SelStart()), box_.SelStart() + box_.SelLength());
  SendMessageW(Hwnd(), EM_SCROLLCARET, 0, 0);
  Announce(EVENT_OBJECT_TEXTSELECTIONCHANGED);  // for example by a completion
}

void EditWindow::OnCommand(WORD notification) {
  // This comes in the middle of an edit, and possibly more than once: the control is told afterwards.
  if (notification == EN_CHANGE && !showing_) edited_ = true;
}

LRESULT EditWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  LRESULT result = 0;
  {
    const form::Scoped deeper(depth_, depth_ + 1);
    result = Process(message, wParam, lParam);
  }
  if (depth_ > 0 || showing_ || Retired()) return result;
  if (edited_ || MaySelect(message)) Report();
  if ((message == WM_CHAR || message == WM_KEYDOWN) && !Retired()) box_.InputKeyDone();
  if (std::exchange(composed_, false) && !Retired()) box_.InputComposing(false);
  return result;
}

/// Reports the result of the user's edit to the control. What the control's handlers change is shown by themselves.
void EditWindow::Report() {
  const bool edited = std::exchange(edited_, false);
  Selection selection;
  Default(EM_GETSEL, reinterpret_cast<WPARAM>(&selection.Start), reinterpret_cast<LPARAM>(&selection.End));
  const int start = static_cast<int>(selection.Start);
  const int length = static_cast<int>(selection.End - selection.Start);
  if (!edited) {
    if (start != box_.SelStart() || length != box_.SelLength()) box_.InputSelection(start, length);
    return;
  }
  box_.InputEdited(ShownText(), start, length);
  if (Retired() || box_.Text() == ShownText()) return;
  // The control has rejected the edit.
  ShowText();
  ShowSelection();
}

std::wstring EditWindow::ShownText() const {
  std::wstring text(static_cast<std::size_t>(Default(WM_GETTEXTLENGTH)), L'\0');
  Default(WM_GETTEXT, text.size() + 1, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

LRESULT EditWindow::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_KEYDOWN:
      if (OnEditingKey(static_cast<form::Key>(wParam))) return 0;
      if (MovesCaret(wParam) && box_.InputKeyDown(static_cast<form::Key>(wParam)) == form::Key::None) return 0;
      break;
    case WM_CHAR:
      return OnCharacter(wParam, lParam);
    case WM_MOUSEWHEEL:
      return OnWheel(wParam, lParam);
    case WM_LBUTTONDBLCLK: {
      const LRESULT result = Default(message, wParam, lParam);
      box_.InputDblClick();
      return result;
    }
    case WM_IME_STARTCOMPOSITION:
      composed_ = false;
      box_.InputComposing(true);
      break;
    case WM_IME_ENDCOMPOSITION:
      composed_ = true;  // reported after the resulting text
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE: {
      const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
      if (!Retired()) PaintEdge();
      return result;
    }
    case WM_NCCALCSIZE:
      // In both forms of the message, the window's rectangle comes first and is replaced by its client area.
      LayOut(*reinterpret_cast<RECT*>(lParam));
      return 0;
    case WM_NCPAINT:
      PaintEdge();
      return 0;
    case WM_NCHITTEST: {
      // The margins belong to the text.
      const LRESULT hit = Default(message, wParam, lParam);
      return hit == HTTRANSPARENT || hit == HTERROR ? hit : HTCLIENT;
    }
    default:
      break;
  }
  return ControlWindow::OnMessage(message, wParam, lParam);
}

/// Older versions of Windows send the message to the window with the focus, wherever the mouse is.
LRESULT EditWindow::OnWheel(WPARAM wParam, LPARAM lParam) {
  constexpr int PageRows = 8;  // for users who scroll by pages, whose length is not known here
  const HWND under = WindowFromPoint({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  const ControlWindow* const control = ControlWindow::From(under);
  if (control != nullptr && control->PartCount() >= 0) {
    return SendMessageW(under, WM_MOUSEWHEEL, wParam, lParam);
  }
  if (control != this) return Default(WM_MOUSEWHEEL, wParam, lParam);
  if (const int rows = wheel_.Rows(wParam, PageRows); rows != 0) box_.InputWheel(rows);
  return 0;
}

/// Handles an editing key with Ctrl, independently of the characters that the control accepts. Returns whether it was
/// one.
bool EditWindow::OnEditingKey(form::Key key) {
  if (GetKeyState(VK_CONTROL) >= 0 || GetKeyState(VK_MENU) < 0 || GetKeyState(VK_SHIFT) < 0) return false;
  if (key == form::Key::Back) {
    // For the control this is a Backspace that removes more.
    if (box_.InputKeyPress(form::CharBackspace) == form::CharBackspace && !Retired()) {
      Default(EM_SETSEL, static_cast<WPARAM>(box_.WordStart()), box_.SelStart() + box_.SelLength());
      Default(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L""));
    }
    return true;
  }
  if (key == form::Key::A) {
    Default(EM_SETSEL, 0, -1);
    return true;
  }
  const auto* const editing = std::ranges::find(EditingKeys, key, &EditingKey::Key);
  if (editing == std::end(EditingKeys)) return false;
  Default(editing->Message);
  return true;
}

LRESULT EditWindow::OnCharacter(WPARAM character, LPARAM lParam) {
  if (IsEditingCharacter(character)) return 0;
  const wchar_t typed = box_.InputKeyPress(static_cast<wchar_t>(character));
  if (Retired()) return 0;
  switch (typed) {
    case 0:
    case L'\t':
    case L'\n':
    case form::CharEnter:
    case form::CharEscape:
      return 0;  // the window class would only beep
    default:
      return Default(WM_CHAR, typed, lParam);
  }
}

/// Leaves room for the edge, and centres the line of text vertically.
void EditWindow::LayOut(RECT& inside) const {
  const auto scaled = [&](int pixels) { return std::lround(pixels * Scale()); };
  const LONG height = inside.bottom - inside.top;
  const LONG line = std::min<LONG>(TextHeight(Font()), std::max<LONG>(height - scaled(2), 0));
  const LONG side = std::min(scaled(6), (inside.right - inside.left) / 2);
  InflateRect(&inside, -side, 0);
  inside.top += (height - line) / 2;
  inside.bottom = inside.top + line;
}

void EditWindow::PaintEdge() {
  const RECT place = WindowArea(Hwnd());
  const RECT whole = WholeArea(Hwnd());
  RECT inside = ClientArea(Hwnd());
  MapWindowPoints(Hwnd(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
  OffsetRect(&inside, -place.left, -place.top);
  Canvas canvas(whole.right, whole.bottom);
  DrawBackdrop(canvas);
  DrawField(canvas, canvas.Whole(), EdgeColor(), BackgroundColor(), GetFocus() == Hwnd(), Scale());
  const WindowDc window(Hwnd());
  ExcludeClipRect(window.Get(), inside.left, inside.top, inside.right, inside.bottom);
  canvas.Show(window.Get());
}

}  // namespace vantor::win32
