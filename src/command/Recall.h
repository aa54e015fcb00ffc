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

/// Brings the lines that were started in this run back into the empty command line. They are kept nowhere else.
class Recall {
 public:
  /// All are kept by reference.
  Recall(form::TextBox& textMain, CommandState& state, const list::LaunchList& list, const service::Language& language,
         const state::Environment& environment);

  /// Remembers a line as the newest, in the place of the same line before. Of more than 100 the oldest is forgotten.
  void Started(std::wstring_view line);
  /// The line says something else now.
  void Leave() { shown_.reset(); }
  /// Up goes to an older line, Down to a newer one, and past the newest to the empty line. Lines of items that are
  /// gone are left out. Returns false, with nothing done, for other keys and where the line says something else.
  bool Walk(form::Key key);

 private:
  [[nodiscard]] bool WalkBack();
  void WalkForward();
  /// Puts the line back, with the item that it names recorded; false, with nothing done, when that is gone.
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
