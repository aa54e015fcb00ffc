#include "win32/window/ChoiceWindow.h"

#include <oleacc.h>

#include <algorithm>
#include <string>
#include <vector>

#include "form/Scoped.h"

namespace vantor::win32 {

ChoiceWindow::ChoiceWindow(FormWindow& owner, form::ChoiceButton& button, DWORD style)
    : ControlWindow(owner, button, {L"BUTTON", WS_TABSTOP | style, {}, true}), button_(button) {}

void ChoiceWindow::Refresh() {
  ControlWindow::Refresh();
  Show(form::Property::Caption);
  Show(form::Property::Value);
}

void ChoiceWindow::Show(form::Property property) {
  if (property == form::Property::Caption) {
    std::wstring text = button_.Caption();
    // An ampersand would underline the letter after it.
    for (std::size_t at = text.find(L'&'); at != std::wstring::npos; at = text.find(L'&', at + 2))
      text.insert(at, 1, L'&');
    ShowWindowText(text);
  } else if (property == form::Property::Value) {
    SendMessageW(Hwnd(), BM_SETCHECK, button_.Value() ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

void ChoiceWindow::OnCommand(WORD notification) {
  if (notification == BN_CLICKED && !focusing_) button_.InputClick();
}

HBRUSH ChoiceWindow::OnColor(HDC dc) {
  ControlWindow::OnColor(dc);
  SetBkMode(dc, TRANSPARENT);
  // There may be a picture behind the window.
  const SIZE size = ClientSize();
  Canvas canvas(size.cx, size.cy);
  DrawBackdrop(canvas);
  const BitmapHandle copy(CreateCompatibleBitmap(WindowDc(nullptr).Get(), canvas.Width(), canvas.Height()));
  const MemoryDcHandle memory(CreateCompatibleDC(nullptr));
  {
    const Selected selected(memory.Get(), copy.Get());
    canvas.Show(memory.Get());
  }
  backdrop_.Reset(CreatePatternBrush(copy.Get()));
  return backdrop_.Get();
}

LRESULT ChoiceWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (OnEnter(message, wParam, lParam)) return 0;
  if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;  // a second click like the first
  const form::Scoped focusing(focusing_, focusing_ || message == WM_SETFOCUS);
  return ControlWindow::OnMessage(message, wParam, lParam);
}

void CheckWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_CHECKBUTTON;
  state.Action = Chosen() ? L"Uncheck" : L"Check";
  if (Chosen()) state.State |= STATE_SYSTEM_CHECKED;
}

void OptionWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_RADIOBUTTON;
  state.Action = L"Check";
  if (Chosen()) state.State |= STATE_SYSTEM_CHECKED;
}

LRESULT OptionWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN) {
    const bool backwards = wParam == VK_UP || wParam == VK_LEFT;
    if (backwards || wParam == VK_DOWN || wParam == VK_RIGHT) {
      ChooseNeighbour(backwards);
      return 0;
    }
  }
  return ChoiceWindow::OnMessage(message, wParam, lParam);
}

void OptionWindow::ChooseNeighbour(bool backwards) {
  std::vector<form::OptionButton*> group = button_.Group();
  std::erase_if(group, [](const form::OptionButton* button) { return !button->AcceptsInput(); });
  const auto here = std::find(group.begin(), group.end(), &button_);
  if (here == group.end()) return;
  const std::size_t count = group.size();
  const std::size_t next = (static_cast<std::size_t>(here - group.begin()) + (backwards ? count - 1 : 1)) % count;
  form::OptionButton& button = *group[next];
  button.SetFocus();
  if (!Retired()) button.InputClick();
}

}  // namespace vantor::win32
