#pragma once

#include <cstdint>

namespace vantor::command {

inline constexpr std::int16_t NoIndex = -1;

/// The entry that the line was completed to, which Enter starts.
struct CompletedEntry {
  std::int16_t MatchedItemIndex = NoIndex;  // item of the list that the code names
  std::int16_t MailTargetIndex = NoIndex;   // 0 to 2: one of the maker's addresses
};

/// What the command line remembers from one key to the next.
struct CommandState : CompletedEntry {
  std::int16_t OpenPanelIndex = NoIndex;  // the CommandMenu button whose panel is open
  bool BackspaceFlag = false;             // the next change comes from Backspace and is not completed
  bool SettingLine = false;               // the change being handled puts a whole entry into the line
};

}  // namespace vantor::command
