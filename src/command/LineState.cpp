#include "command/LineState.h"

#include "form/Scoped.h"

namespace vantor::command {

LineState ReadLine(const form::TextBox& textMain, const CommandState& state) {
  return {textMain.Text(), textMain.SelStart(), textMain.SelLength(), static_cast<const CompletedEntry&>(state)};
}

void PutLine(const LineState& line, form::TextBox& textMain, CommandState& state) {
  {
    const form::Scoped setting(state.SettingLine, true);
    textMain.SetText(line.Text);
  }
  textMain.Select(line.SelStart, line.SelLength);
  static_cast<CompletedEntry&>(state) = line.Record;
}

}  // namespace vantor::command
