#pragma once

#include <string_view>

#include "command/CommandCodes.h"
#include "command/CommandState.h"
#include "list/LaunchList.h"
#include "state/Environment.h"

namespace vantor::command {

/// The names that complete the argument of a code, in the order in which they are searched.
class Candidates {
 public:
  /// All are kept by reference. A code whose argument is not completed has no names.
  Candidates(const CommandCode& code, const list::LaunchList& list, const state::Environment& environment);

  [[nodiscard]] int Count() const;
  /// `index` is 0 to Count() - 1. Returns "" for a word that is never offered.
  [[nodiscard]] std::wstring_view Name(int index) const;
  /// What the name stands for: a target, or a mail's subject; "" for a code word, which explains itself.
  [[nodiscard]] std::wstring_view Detail(int index) const;

  /// The index of exactly this name; -1 if it is missing.
  [[nodiscard]] int IndexOf(std::wstring_view name) const;
  /// The record by which Enter starts this candidate; empty for a code word, which Enter reads from the line.
  [[nodiscard]] CompletedEntry Record(int index) const;

 private:
  const CommandCode* code_;
  const list::GroupBoxes* boxes_;
  const state::Environment* environment_;
};

}  // namespace vantor::command
