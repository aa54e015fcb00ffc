#include "command/Recall.h"

#include "command/Candidates.h"
#include "command/LineState.h"

namespace vantor::command {

constexpr std::size_t MostLines = 100;

Recall::Recall(form::TextBox& textMain, CommandState& state, const list::LaunchList& list,
               const service::Language& language, const state::Environment& environment)
    : textMain_(textMain), state_(state), list_(list), language_(language), environment_(environment) {}

void Recall::Started(std::wstring_view line) {
  std::erase(lines_, line);
  lines_.emplace_front(line);
  if (lines_.size() > MostLines) lines_.pop_back();
  if (shown_) shown_ = 0;  // of a page of the Control Panel, the line stays
}

bool Recall::Walk(form::Key key) {
  const std::wstring& text = textMain_.Text();
  if (!shown_ && !text.empty() && text != state::ProductName) return false;
  if (key == form::Key::Up) return WalkBack();
  if (key != form::Key::Down || !shown_) return false;
  WalkForward();
  return true;
}

bool Recall::WalkBack() {
  for (std::size_t next = shown_ ? *shown_ + 1 : 0; next < lines_.size(); ++next) {
    if (Show(next)) return true;
  }
  return shown_.has_value();
}

void Recall::WalkForward() {
  for (std::size_t next = *shown_; next-- > 0;) {
    if (Show(next)) return;
  }
  PutLine({}, textMain_, state_);
  shown_.reset();
}

bool Recall::Show(std::size_t index) {
  LineState line{lines_[index], static_cast<int>(lines_[index].size()), 0, {}};
  const CommandCode* const code = CodeOf(line.Text, language_);
  if (code != nullptr && NamesEntry(code->Argument)) {
    const Candidates candidates(*code, list_, environment_);
    const int entry = candidates.IndexOf(std::wstring_view(line.Text).substr(CodeLength));
    if (entry == NoIndex) return false;
    line.Record = candidates.Record(entry);
  }
  PutLine(line, textMain_, state_);
  shown_ = index;
  return true;
}

}  // namespace vantor::command
