#pragma once

#include <string>

#include "command/CommandState.h"
#include "form/TextBox.h"

namespace vantor::command {

/// The text of the line, its selection, and the entry that Enter starts.
struct LineState {
  std::wstring Text;
  int SelStart = 0;
  int SelLength = 0;
  CompletedEntry Record;
};

[[nodiscard]] LineState ReadLine(const form::TextBox& textMain, const CommandState& state);
/// Restores such a state. The change of the text does not start a search.
void PutLine(const LineState& line, form::TextBox& textMain, CommandState& state);

}  // namespace vantor::command
