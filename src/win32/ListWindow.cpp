#include "win32/ListWindow.h"

#include <cmath>
#include <string>

#include "form/FileLists.h"
#include "win32/Lines.h"

namespace vantor::win32 {

namespace {

/// How far a folder stands in from the one that holds it, in pixels at 96 dots per inch.
constexpr int Indentation = 10;

}  // namespace

ListWindow::ListWindow(FormWindow& owner, form::ListControl& list)
    : ControlWindow(owner, list,
                    {L"LISTBOX", WS_TABSTOP | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT |
                                     LBS_HASSTRINGS | LBS_OWNERDRAWFIXED}),
      list_(list) {}

void ListWindow::Refresh() {
  ControlWindow::Refresh();
  SendMessageW(Hwnd(), LB_SETITEMHEIGHT, 0, LineHeight(Hwnd(), Font(), Scale()));
  Fill();
}

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
  if (SendMessageW(Hwnd(), LB_GETCURSEL, 0, 0) != list_.ListIndex()) {
    SendMessageW(Hwnd(), LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()), 0);
  }
}

void ListWindow::OnCommand(WORD notification) {
  if (notification == LBN_SELCHANGE) {
    list_.InputSelect(static_cast<int>(SendMessageW(Hwnd(), LB_GETCURSEL, 0, 0)));
  } else if (notification == LBN_DBLCLK) {
    list_.InputDblClick();
  }
}

LRESULT ListWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    list_.InputDblClick();
    return 0;
  }
  if (message == WM_CHAR && wParam == VK_RETURN) return 0;  // no entry begins with it
  return OnMessageWithEdge(message, wParam, lParam, 1);     // as thick as the border that the window has
}

void ListWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const int index = static_cast<int>(item.itemID);
  if (index < 0 || index >= list_.ListCount()) return;
  int indent = 0;
  if (list_.Kind() == form::ControlKind::FolderList) {
    const int level = static_cast<const form::FolderList&>(list_).LevelOf(index);
    indent = static_cast<int>(std::lround(level * Indentation * Scale()));
  }
  const Line line{list_.List(index), indent, list_.Enabled(), list_.ForeColor()};
  DrawLine(item, line, Ground(), Font(), Look(), Scale());
}

}  // namespace vantor::win32
