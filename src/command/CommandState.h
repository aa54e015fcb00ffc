#pragma once

#include <cstdint>

namespace vantor::command {

inline constexpr std::int16_t NoIndex = -1;

/// What the command line remembers from one key to the next.
struct CommandState {
  std::int16_t MatchedItemIndex = NoIndex;  // item of the list that the code names, as type-ahead completed it
  std::int16_t MailTargetIndex = NoIndex;   // 0 to 2: the maker's address that type-ahead completed
  std::int16_t OpenPanelIndex = NoIndex;    // the CommandMenu button whose panel is open
  bool BackspaceFlag = false;               // the next change comes from Backspace and is not completed
};

}  // namespace vantor::command
