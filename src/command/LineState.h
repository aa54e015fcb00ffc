#pragma once

#include <string>

#include "command/CommandState.h"
#include "form/TextBox.h"

namespace vantor::command {

/// What the line says, what of it is selected, and which entry Enter starts.
struct LineState {
  std::wstring Text;
  int SelStart = 0;
  int SelLength = 0;
  CompletedEntry Record;
};

[[nodiscard]] LineState ReadLine(const form::TextBox& textMain, const CommandState& state);
/// Sets all of it. The change of the text runs no search.
void PutLine(const LineState& line, form::TextBox& textMain, CommandState& state);

}  // namespace vantor::command
