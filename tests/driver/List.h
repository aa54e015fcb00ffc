#pragma once

#include <windows.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "driver/Accessible.h"
#include "driver/Window.h"

namespace vantor::desktop {

/// A list as a person meets it: a list box, a combo box, whose own list may lag behind, or a list whose rows are only
/// drawn, which are read as a screen reader does.
class List {
 public:
  explicit List(HWND window) : window_(window), combo_(window::DropDownOf(window) != nullptr) {
    if (window::ClassName(window) == L"Static") rows_ = std::make_unique<Accessible>(window);
  }

  /// All entries; of drawn ones those in sight.
  [[nodiscard]] std::vector<std::wstring> Entries() const {
    std::vector<std::wstring> entries;
    for (LONG i = 0; i < Count(); ++i) {
      if (InSight(i)) entries.push_back(Text(i));
    }
    return entries;
  }
  /// The selected entry's text; of a drawn one all that is said of it. "" for none.
  [[nodiscard]] std::wstring Selected() const {
    if (rows_) return rows_->Selected() > 0 ? rows_->Name(rows_->Selected()) : L"";
    const LONG selected = Ask(CB_GETCURSEL, LB_GETCURSEL);
    return selected >= 0 ? Text(selected) : L"";
  }
  /// Where an entry is on the screen, once it is there.
  [[nodiscard]] POINT AwaitEntry(const std::wstring& entry) const {
    LONG index = -1;
    Await("the entry", [&] {
      index = Count() - 1;
      while (index >= 0 && !(InSight(index) && Text(index) == entry)) --index;
      return index >= 0;
    });
    if (rows_) return rows_->Middle(index + 1);
    RECT item = {};
    Ask(0, LB_GETITEMRECT, index, &item);
    POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    ClientToScreen(window_, &middle);
    return middle;
  }

 private:
  LONG Ask(UINT combo, UINT list, LONG index = 0, void* answer = nullptr) const {
    const auto to = reinterpret_cast<LPARAM>(answer);
    return static_cast<LONG>(SendMessageW(window_, combo_ ? combo : list, static_cast<WPARAM>(index), to));
  }
  [[nodiscard]] LONG Count() const { return rows_ ? rows_->Count() : Ask(CB_GETCOUNT, LB_GETCOUNT); }
  [[nodiscard]] bool InSight(LONG row) const { return !rows_ || (rows_->State(row + 1) & STATE_SYSTEM_OFFSCREEN) == 0; }
  [[nodiscard]] std::wstring Text(LONG index) const {
    if (rows_) {
      const std::wstring said = rows_->Name(index + 1);
      return said.substr(0, said.rfind(L", "));
    }
    std::wstring text(static_cast<std::size_t>(std::max(Ask(CB_GETLBTEXTLEN, LB_GETTEXTLEN, index), 0L)) + 1, L'\0');
    Ask(CB_GETLBTEXT, LB_GETTEXT, index, text.data());
    text.pop_back();
    return text;
  }

  HWND window_;
  bool combo_;
  std::unique_ptr<Accessible> rows_;
};

}  // namespace vantor::desktop
