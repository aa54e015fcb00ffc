#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "text/SequentialFile.h"

namespace vantor::list {

/// The upper index that means no records.
inline constexpr std::int16_t NoRecords = -1;

/// The values of the settings file, in its order. An upper index is that of the last record of a list file, -1 for
/// no records.
struct Settings {
  std::int16_t OptionMask = 2;  // 1 start with Windows, 2 always on top, 4 show the add-web box at start
  std::int16_t FileUpper = NoRecords;
  std::int16_t FoldUpper = NoRecords;
  std::int16_t ProgUpper = NoRecords;
  std::int16_t WebUpper = NoRecords;
  std::int16_t Left = 0;  // of the bar, in twips
  std::int16_t Top = 0;
  std::wstring RememberedBrowseFolder;  // last shown in the add-to-list dialog; "" in removable-media mode
  std::int16_t MachineFileUpper = NoRecords;
  std::int16_t MachineFoldUpper = NoRecords;
  std::int16_t MachineProgUpper = NoRecords;
};

/// Reads the values from the text of a settings file. Values missing at its end, or that are not 16-bit numbers, stay
/// unchanged. Returns false if the text was not complete.
bool ReadSettings(std::wstring_view text, Settings& settings);
/// The text of the settings file.
[[nodiscard]] text::SequentialWriter WriteSettings(const Settings& settings);

}  // namespace vantor::list
