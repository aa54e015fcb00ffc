#pragma once

#include <string>
#include <string_view>

#include "command/CommandState.h"
#include "command/LineState.h"
#include "command/frmMatches.h"
#include "form/Keys.h"
#include "form/TextBox.h"

namespace vantor::command {

/// Shows what fits the line, and walks through it: the line takes on the name of the row walked to, as if that had been
/// completed.
class MatchWalk {
 public:
  /// All are kept by reference.
  MatchWalk(form::TextBox& textMain, CommandState& state, frmMatches& list);

  /// What was typed after a code, which the line has been completed by or not: shows what fits if that is more than
  /// the line says.
  void Show(const Candidates& candidates, std::wstring_view prefix, std::wstring_view typed, bool completed);
  void Hide() { list_.Hide(); }

  /// An input method begins to compose, or ends without having changed the line: the list gives way to it.
  void GiveWay(bool composing);

  /// Walks by Up, Down, Page Up and Page Down. Returns false, with nothing done, for other keys and without a list.
  bool Walk(form::Key key);
  /// Walks to a row.
  void WalkTo(int row);
  /// Scrolls the list by so many rows.
  void Scroll(int rows);

 private:
  form::TextBox& textMain_;
  CommandState& state_;
  frmMatches& list_;
  std::wstring prefix_;
  int home_ = -1;         // the row that the line was completed to; -1: none
  LineState typed_;       // the line before it was walked from
  bool gaveWay_ = false;  // to an input method
};

}  // namespace vantor::command
