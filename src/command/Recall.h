#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "command/CommandState.h"
#include "form/Keys.h"
#include "form/TextBox.h"
#include "list/LaunchList.h"
#include "service/Language.h"
#include "state/Environment.h"

namespace vantor::command {

/// Brings lines that were started earlier in this run back into the empty command line. They are kept only in memory.
class Recall {
 public:
  /// All are kept by reference.
  Recall(form::TextBox& textMain, CommandState& state, const list::LaunchList& list, const service::Language& language,
         const state::Environment& environment);

  /// Remembers a line as the newest one, removing an earlier copy of it. Keeps the 100 newest lines.
  void Started(std::wstring_view line);
  /// The line has changed.
  void Leave() { shown_.reset(); }
  /// Up goes to an older line, Down to a newer one, and past the newest to the empty line. Lines of items that
  /// no longer exist are skipped. Returns false and does nothing for other keys, or if the line holds another text.
  bool Walk(form::Key key);

 private:
  [[nodiscard]] bool WalkBack();
  void WalkForward();
  /// Shows the line again and records the item that it names. Returns false and does nothing if the item is gone.
  bool Show(std::size_t index);

  form::TextBox& textMain_;
  CommandState& state_;
  const list::LaunchList& list_;
  const service::Language& language_;
  const state::Environment& environment_;
  std::deque<std::wstring> lines_;    // the newest first
  std::optional<std::size_t> shown_;  // the one that the line shows
};

}  // namespace vantor::command
