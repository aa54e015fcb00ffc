#include "win32/window/ComboWindow.h"

#include <oleacc.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "form/Scoped.h"
#include "win32/draw/Areas.h"
#include "win32/draw/Rows.h"

namespace vantor::win32 {

namespace {

/// The number of lines that the dropped list shows, and that PageUp and PageDown move by.
constexpr int ShownLines = 12;
/// The width is measured for this many entries, those with the most characters.
constexpr std::size_t MeasuredEntries = 24;
/// Keys typed within this time belong to the same search text; milliseconds.
constexpr DWORD SpellingTime = 1000;

bool BeginsWith(const std::wstring& text, const std::wstring& beginning) {
  if (text.size() < beginning.size()) return false;
  const int count = static_cast<int>(beginning.size());
  return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, text.c_str(), count, beginning.c_str(), count) ==
         CSTR_EQUAL;
}

}  // namespace

ComboWindow::ComboWindow(FormWindow& owner, form::DropDownList& list)
    : ControlWindow(
          owner, list,
          {L"COMBOBOX", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS | CBS_OWNERDRAWFIXED, {}, true}),
      list_(list) {
  const HWND dropped = Parts().hwndList;
  if (dropped == nullptr) return;
  SetWindowLongPtrW(dropped, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  listProcedure_ =
      reinterpret_cast<WNDPROC>(SetWindowLongPtrW(dropped, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListProcedure)));
}

COMBOBOXINFO ComboWindow::Parts() const {
  COMBOBOXINFO parts{sizeof parts};
  GetComboBoxInfo(Hwnd(), &parts);
  return parts;
}

void ComboWindow::ApplyBounds() {
  // The height given to the system is that of the dropped list; the window's own depends on the height of its line.
  const RECT bounds = BoundsInPixels();
  const int line = RowHeight(Font(), Scale());
  Default(CB_SETITEMHEIGHT, 0, line);
  SetWindowPos(Hwnd(), nullptr, bounds.left, bounds.top, bounds.right, bounds.bottom + ShownLines * line + 2,
               SWP_NOZORDER | SWP_NOACTIVATE);
  // The window may come out slightly higher than the line's height implies; then it is corrected once more.
  int height = static_cast<int>(Default(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
  for (int i = 0; i < 2; ++i) {
    const RECT shown = WindowArea(Hwnd());
    const int missing = bounds.bottom - (shown.bottom - shown.top);
    if (missing == 0 || height + missing <= 0) break;
    height += missing;
    Default(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height);
  }
}

void ComboWindow::Show(form::Property property) {
  if (IsDropped()) {
    if (property == form::Property::List) FitList();
    Default(CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
  }
  Redraw();
  Announce(EVENT_OBJECT_VALUECHANGE);
}

std::wstring ComboWindow::TipText() const {
  if (IsDropped()) return {};  // it would cover the list
  if (!list_.ToolTip().empty()) return list_.ToolTip();
  const std::wstring text = list_.Text();
  if (text.empty()) return {};
  // Only texts that don't fit have a tool tip.
  const RECT field = Parts().rcItem;
  return TextSize(text, Font()).cx > field.right - field.left - 2 * RowMargin(Scale()) ? text : std::wstring();
}

void ComboWindow::Describe(AccessibleState& state) const {
  state.Role = ROLE_SYSTEM_COMBOBOX;
  state.Value = list_.Text();
  state.State |= STATE_SYSTEM_HASPOPUP | (IsDropped() ? STATE_SYSTEM_EXPANDED : STATE_SYSTEM_COLLAPSED);
  state.Action = IsDropped() ? L"Close" : L"Open";
}

void ComboWindow::Act() { PostMessageW(Hwnd(), CB_SHOWDROPDOWN, IsDropped() ? FALSE : TRUE, 0); }

void ComboWindow::OnCommand(WORD notification) {
  switch (notification) {
    case CBN_DROPDOWN:
      Owner().HideToolTip();
      FitList();
      FitWidth();
      Default(CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
      break;
    case CBN_SELCHANGE:
      if (!list_.ChoosesAtEnd()) list_.InputSelect(static_cast<int>(Default(CB_GETCURSEL)));
      break;
    case CBN_SELENDOK:
      if (list_.ChoosesAtEnd()) chosen_ = static_cast<int>(Default(CB_GETCURSEL));
      break;
    case CBN_CLOSEUP:
      typed_.clear();  // what is typed next starts a new search
      Redraw();
      if (const auto chosen = std::exchange(chosen_, {})) {
        list_.InputSelect(*chosen, entering_ ? form::ListInput::Enter : form::ListInput::Click);
      }
      break;
    default:
      break;
  }
}

/// Gives the window's list as many entries as the control has. They are empty, because the texts drawn come from the
/// control.
void ComboWindow::FitList() {
  const int count = list_.ListCount();
  if (count == shownCount_) return;
  const HWND list = Parts().hwndList;
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  if (count == 0) {
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
  } else {
    if (count > shownCount_) SendMessageW(list, LB_INITSTORAGE, static_cast<WPARAM>(count - shownCount_), 0);
    for (int i = shownCount_; i < count; ++i) SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    for (int i = shownCount_; i > count; --i) SendMessageW(list, LB_DELETESTRING, static_cast<WPARAM>(i - 1), 0);
  }
  shownCount_ = count;
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void ComboWindow::FitWidth() {
  const auto& entries = list_.Entries();
  std::vector<const std::wstring*> longest;
  longest.reserve(entries.size());
  for (const std::wstring& entry : entries) longest.push_back(&entry);
  const std::size_t count = std::min(longest.size(), MeasuredEntries);
  std::partial_sort(longest.begin(), longest.begin() + static_cast<std::ptrdiff_t>(count), longest.end(),
                    [](const auto* a, const auto* b) { return a->size() > b->size(); });
  longest.resize(count);
  LONG width = 0;
  for (const std::wstring* entry : longest) width = std::max(width, TextSize(*entry, Font()).cx);
  const MONITORINFO screen = MonitorOf(Hwnd());
  width += 2 * RowMargin(Scale()) + GetSystemMetrics(SM_CXVSCROLL) + 2 * GetSystemMetrics(SM_CXBORDER);
  const RECT window = WindowArea(Hwnd());
  width = std::min({width, (screen.rcWork.right - screen.rcWork.left) / 2, screen.rcWork.right - window.left});
  Default(CB_SETDROPPEDWIDTH, static_cast<WPARAM>(std::max(width, window.right - window.left)));
}

void ComboWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const bool field = (item.itemState & ODS_COMBOBOXEDIT) != 0;
  const int index = field ? list_.ListIndex() : static_cast<int>(item.itemID);
  std::wstring_view text;
  if (index >= 0 && index < list_.ListCount()) text = list_.List(index);
  DRAWITEMSTRUCT drawn = item;
  // The field shows whether it has the focus, not that its entry is selected.
  if (field && (item.itemState & ODS_FOCUS) == 0) drawn.itemState &= ~static_cast<UINT>(ODS_SELECTED);
  DrawRow(drawn, {text, 0, list_.Enabled(), list_.ForeColor()}, BackgroundColor(), Font(), Theme(), Scale());
}

const std::wstring* ComboWindow::Asked(WPARAM index) const {
  return index < list_.Entries().size() ? &list_.Entries()[index] : nullptr;
}

std::optional<LRESULT> ComboWindow::Answer(UINT message, WPARAM wParam, LPARAM lParam) const {
  auto* const target = reinterpret_cast<wchar_t*>(lParam);
  switch (message) {
    case CB_GETCOUNT:
      return list_.ListCount();
    case CB_GETCURSEL:
      return list_.ListIndex();
    case CB_GETLBTEXTLEN:
    case CB_GETLBTEXT: {
      const std::wstring* const text = Asked(wParam);
      if (text == nullptr) return CB_ERR;
      if (message == CB_GETLBTEXT) std::copy_n(text->c_str(), text->size() + 1, target);
      return static_cast<LRESULT>(text->size());
    }
    case WM_GETTEXTLENGTH:
      return static_cast<LRESULT>(list_.Text().size());
    case WM_GETTEXT: {
      if (wParam == 0) return {};
      const std::wstring text = list_.Text().substr(0, wParam - 1);
      std::copy_n(text.c_str(), text.size() + 1, target);
      return static_cast<LRESULT>(text.size());
    }
    default:
      return {};
  }
}

LRESULT CALLBACK ComboWindow::ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto& window = *reinterpret_cast<const ComboWindow*>(GetWindowLongPtrW(list, GWLP_USERDATA));
  const bool asksText = message == LB_GETTEXT || message == LB_GETTEXTLEN;
  if (asksText && !window.Retired())
    return window.Answer(message == LB_GETTEXT ? CB_GETLBTEXT : CB_GETLBTEXTLEN, wParam, lParam).value();
  return CallWindowProcW(window.listProcedure_, list, message, wParam, lParam);
}

/// Handles the keys that choose an entry while the list is not dropped.
bool ComboWindow::OnKey(WPARAM key) {
  const int index = list_.ListIndex();
  switch (key) {
    case VK_UP:
    case VK_LEFT:
      list_.InputWalk(index - 1);
      return true;
    case VK_DOWN:
    case VK_RIGHT:
      list_.InputWalk(index + 1);
      return true;
    case VK_PRIOR:
      list_.InputWalk(index - ShownLines);
      return true;
    case VK_NEXT:
      list_.InputWalk(index + ShownLines);
      return true;
    case VK_HOME:
      list_.InputWalk(0);
      return true;
    case VK_END:
      list_.InputWalk(list_.ListCount() - 1);
      return true;
    default:
      return false;
  }
}

/// Chooses the next entry that begins with the text being typed.
bool ComboWindow::OnCharacter(wchar_t character) {
  if (character < L' ') return false;
  const DWORD now = GetTickCount();
  if (now - typedAt_ > SpellingTime) typed_.clear();
  typedAt_ = now;
  const bool again = typed_.size() == 1 && typed_[0] == character;  // the same key again moves to the next entry
  if (!again) typed_ += character;
  const int count = list_.ListCount();
  const int from = list_.ListIndex() + (typed_.size() == 1 ? 1 : 0);
  for (int i = 0; i < count; ++i) {
    const int index = (std::max(from, 0) + i) % count;
    if (!BeginsWith(list_.List(index), typed_)) continue;
    if (IsDropped() && list_.ChoosesAtEnd()) {
      Default(CB_SETCURSEL, static_cast<WPARAM>(index));
      break;
    }
    if (!list_.Ready(index)) continue;
    list_.InputWalk(index);
    if (!Retired() && IsDropped()) Default(CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
    break;
  }
  return true;
}

LRESULT ComboWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = Answer(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_KEYDOWN:
      if (wParam == VK_F4) return 0;  // it would drop the list, but is a hot key of the form; Alt+Down drops the list
      if (!IsDropped() && OnKey(wParam)) return 0;
      if (wParam == VK_RETURN) {
        const form::Scoped entering(entering_, true);
        return OnMessageWithEdge(message, wParam, lParam, LineThickness());
      }
      break;
    case WM_CHAR:
      if (OnCharacter(static_cast<wchar_t>(wParam))) return 0;
      break;
    case WM_MOUSEWHEEL:
      if (IsDropped()) break;
      list_.InputWalk(list_.ListIndex() + (static_cast<short>(HIWORD(wParam)) > 0 ? -1 : 1));
      return 0;
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLOREDIT:
      return reinterpret_cast<LRESULT>(OnColor(reinterpret_cast<HDC>(wParam)));
    default:
      break;
  }
  return OnMessageWithEdge(message, wParam, lParam, LineThickness());
}

}  // namespace vantor::win32
