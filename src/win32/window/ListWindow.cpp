#include "win32/window/ListWindow.h"

#include <oleacc.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "form/Scoped.h"
#include "win32/draw/Rows.h"

namespace vantor::win32 {

namespace {

/// The indentation of a folder relative to its parent, in pixels at 96 dots per inch.
constexpr int Indentation = 10;

/// An entry's indentation in pixels. In a deep folder the steps are smaller, so that half of the width remains.
int IndentOf(const form::OpenList& list, int index, LONG width, double scale) {
  const int deepest = list.LevelOf(list.ListCount() - 1);
  const double step = std::min(Indentation * scale, width / 2.0 / std::max(deepest, 1));
  return static_cast<int>(std::lround(list.LevelOf(index) * step));
}

}  // namespace

ListWindow::ListWindow(FormWindow& owner, form::OpenList& list)
    : ControlWindow(owner, list,
                    {L"LISTBOX",
                     WS_TABSTOP | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS |
                         LBS_OWNERDRAWFIXED,
                     {},
                     true}),
      list_(list) {}

void ListWindow::Refresh() {
  ControlWindow::Refresh();
  SendMessageW(Hwnd(), LB_SETITEMHEIGHT, 0, RowHeight(Font(), Scale()));
  Fill();
}

void ListWindow::Describe(AccessibleState& state) const { state.Role = ROLE_SYSTEM_LIST; }

void ListWindow::Show(form::Property property) {
  if (property == form::Property::List) Fill();
  if (property == form::Property::ListIndex) ShowIndex();
}

void ListWindow::Fill() {
  SendMessageW(Hwnd(), WM_SETREDRAW, FALSE, 0);
  SendMessageW(Hwnd(), LB_RESETCONTENT, 0, 0);
  const auto& entries = list_.Entries();
  std::size_t bytes = 0;
  for (const std::wstring& entry : entries) bytes += (entry.size() + 1) * sizeof(wchar_t);
  SendMessageW(Hwnd(), LB_INITSTORAGE, entries.size(), static_cast<LPARAM>(bytes));
  for (const std::wstring& entry : entries) {
    SendMessageW(Hwnd(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
  }
  ShowIndex();
  SendMessageW(Hwnd(), WM_SETREDRAW, TRUE, 0);
  RedrawWindow(Hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
}

void ListWindow::ShowIndex() {
  if (SendMessageW(Hwnd(), LB_GETCURSEL, 0, 0) == list_.ListIndex()) return;
  SendMessageW(Hwnd(), LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0);
  if (list_.ListCount() == 0 || list_.LevelOf(list_.ListCount() - 1) == 0) return;
  // The subfolders below the folder should be visible as well.
  const auto shown = static_cast<int>(ClientSize().cy / SendMessageW(Hwnd(), LB_GETITEMHEIGHT, 0, 0));
  SendMessageW(Hwnd(), LB_SETTOPINDEX, static_cast<WPARAM>(std::max(list_.ListIndex() - shown / 3, 0)), 0);
}

void ListWindow::OnCommand(WORD notification) {
  if (notification == LBN_SELCHANGE) {
    const auto how = keying_ ? form::ListInput::Walk : form::ListInput::Click;
    list_.InputSelect(static_cast<int>(SendMessageW(Hwnd(), LB_GETCURSEL, 0, 0)), how);
  } else if (notification == LBN_DBLCLK) {
    list_.InputDblClick();
  }
}

LRESULT ListWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (OnEnter(message, wParam, lParam)) return 0;
  if (message == WM_CHAR && wParam == VK_RETURN) return 0;  // no entry begins with it
  const form::Scoped keying(keying_, keying_ || message == WM_KEYDOWN || message == WM_CHAR);
  return OnMessageWithEdge(message, wParam, lParam, 1);  // as thick as the border that the window has
}

void ListWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const int index = static_cast<int>(item.itemID);
  if (index < 0 || index >= list_.ListCount()) return;
  const int indent = IndentOf(list_, index, item.rcItem.right - item.rcItem.left, Scale());
  const ListRow row{list_.List(index), indent, list_.Enabled(), list_.ForeColor()};
  DrawRow(item, row, BackgroundColor(), Font(), Theme(), Scale());
}

}  // namespace vantor::win32
