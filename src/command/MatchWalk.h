#pragma once

#include <string>
#include <string_view>

#include "command/CommandState.h"
#include "command/LineState.h"
#include "command/frmMatches.h"
#include "form/Keys.h"
#include "form/TextBox.h"

namespace vantor::command {

/// Shows the names that match the line, and moves through them: the line takes on the name of the current row, as if it
/// had been completed to it.
class MatchWalk {
 public:
  /// All are kept by reference.
  MatchWalk(form::TextBox& textMain, CommandState& state, frmMatches& list);

  /// Shows what matches `typed`, the text typed after a code, unless that is only what the line already contains.
  /// `completed`: the line was completed to the first match.
  void Show(const Candidates& candidates, std::wstring_view prefix, std::wstring_view typed, bool completed);
  void Hide() { list_.Hide(); }

  /// An input method starts composing, which hides the list, or ends without having changed the line, which shows it
  /// again.
  void GiveWay(bool composing);

  /// Handles Up, Down, Page Up and Page Down. Returns false and does nothing for other keys or without a list.
  bool Walk(form::Key key);
  /// Moves to a row.
  void WalkTo(int row);
  /// Scrolls the list by the given number of rows.
  void Scroll(int rows);

 private:
  form::TextBox& textMain_;
  CommandState& state_;
  frmMatches& list_;
  std::wstring prefix_;
  int home_ = -1;         // the row that the line was completed to; -1: none
  LineState typed_;       // the line as it was before moving to another row
  bool gaveWay_ = false;  // the list is hidden because of an input method
};

}  // namespace vantor::command
