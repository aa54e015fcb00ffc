#include "command/MatchWalk.h"

#include <algorithm>
#include <utility>

namespace vantor::command {

MatchWalk::MatchWalk(form::TextBox& textMain, CommandState& state, frmMatches& list)
    : textMain_(textMain), state_(state), list_(list) {}

void MatchWalk::Show(const Candidates& candidates, std::wstring_view prefix, std::wstring_view typed, bool completed) {
  if (candidates.Count() == 0 || state_.OpenPanelIndex != NoIndex || !textMain_.HasFocus()) return Hide();
  list_.Search(candidates, typed);
  const Matches& found = list_.Found();
  const std::wstring_view argument = std::wstring_view(textMain_.Text()).substr(prefix.size());
  if (found.Count() == 0 || (found.Count() == 1 && found.NameOf(0) == argument)) return Hide();
  prefix_ = prefix;
  home_ = completed ? 0 : -1;
  list_.ShowFound(home_);
}

void MatchWalk::GiveWay(bool composing) {
  if (composing) {
    gaveWay_ = list_.Visible();
    Hide();
  } else if (std::exchange(gaveWay_, false) && textMain_.HasFocus()) {
    const int top = list_.ListMatches.TopRow();
    list_.ShowFound(list_.ListMatches.CurrentRow());
    list_.ListMatches.ScrollTo(top);
  }
}

bool MatchWalk::Walk(form::Key key) {
  if (!list_.Visible()) return false;
  const int row = list_.ListMatches.CurrentRow();
  const int page = list_.ListMatches.PageRows();
  switch (key) {
    case form::Key::Up:
      WalkTo(row - 1);
      return true;
    case form::Key::Down:
      WalkTo(row + 1);
      return true;
    case form::Key::PageUp:
      WalkTo(row > 0 ? std::max(row - page, 0) : row - 1);
      return true;
    case form::Key::PageDown:
      WalkTo(row + page);
      return true;
    default:
      return false;
  }
}

void MatchWalk::WalkTo(int row) {
  const int from = list_.ListMatches.CurrentRow();
  const Matches& found = list_.Found();
  row = std::clamp(row, home_, found.Count() - 1);
  if (row == from) return;
  if (from == home_) typed_ = ReadLine(textMain_, state_);
  if (row == home_) {
    PutLine(typed_, textMain_, state_);
  } else {
    const std::wstring_view name = found.NameOf(row);
    // The typed part stays unselected if the name begins with it.
    const std::size_t kept = found.PlaceOf(row) == 0 ? found.TypedLength() : 0;
    PutLine({prefix_ + std::wstring(name), static_cast<int>(prefix_.size() + kept),
             static_cast<int>(name.size() - kept), found.From().Record(found.IndexOf(row))},
            textMain_, state_);
  }
  list_.ListMatches.SetCurrentRow(row);
}

void MatchWalk::Scroll(int rows) {
  if (list_.Visible()) list_.ListMatches.ScrollTo(list_.ListMatches.TopRow() + rows);
}

}  // namespace vantor::command
