#include "command/Matches.h"

#include <stdexcept>

namespace vantor::command {

void Matches::Search(const Candidates& candidates, std::wstring_view typed) {
  candidates_ = candidates;
  match_.emplace(language_, typed);
  typedLength_ = typed.size();
  for (auto& found : found_) found.clear();
  for (int index = 0; index < candidates.Count(); ++index) {
    const list::Fit how = match_->Find(candidates.Name(index)).How;
    if (how != list::Fit::None) found_[static_cast<std::size_t>(how)].push_back(static_cast<std::int16_t>(index));
  }
}

int Matches::Count() const {
  std::size_t count = 0;
  for (const auto& found : found_) count += found.size();
  return static_cast<int>(count);
}

int Matches::IndexOf(int row) const {
  auto at = static_cast<std::size_t>(row);
  for (const auto& found : found_) {
    if (at < found.size()) return found[at];
    at -= found.size();
  }
  throw std::out_of_range("no such match");
}

}  // namespace vantor::command
