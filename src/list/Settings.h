#pragma once

#include <cstdint>
#include <string>

namespace vantor::list {

/// The settings file's values, in its order. An upper index is that of the last record of a list file, -1 for
/// no records.
struct Settings {
  std::int16_t OptionMask = 2;  // 1 start with Windows, 2 always on top, 4 show the add-web box at start
  std::int16_t FileUpper = -1;
  std::int16_t FoldUpper = -1;
  std::int16_t ProgUpper = -1;
  std::int16_t WebUpper = -1;
  std::int16_t Left = 0;  // of the bar, in twips
  std::int16_t Top = 0;
  std::wstring Folder;  // last shown in the add-to-list dialog; "" in removable-media mode
  std::int16_t MachineFileUpper = -1;
  std::int16_t MachineFoldUpper = -1;
  std::int16_t MachineProgUpper = -1;
};

}  // namespace vantor::list
