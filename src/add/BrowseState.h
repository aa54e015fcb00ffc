#pragma once

#include <cstdint>
#include <string>

namespace vantor::add {

/// The index of an OptionBrowse button.
enum class AddKind : std::int16_t { Program, File, Folder };

/// What the browse box is open for; None while it is closed.
enum class BrowseUse { None, Add, Open };

/// There is no result of the finder to be checked.
inline constexpr std::int16_t NoPickerDriveType = -1;

/// What the add box knows about the folder it shows. Drive types are those of the scripting file system; 2 is a
/// fixed disk.
struct BrowseState {
  AddKind WhatToAdd = AddKind::Program;
  std::wstring BrowseFolder;  // ends in a backslash
  std::int16_t BrowseDriveType = 0;
  std::int16_t PickerDriveType = NoPickerDriveType;
  std::wstring LastFixedFolder;
  std::wstring SelectedDriveLetter;  // upper case
};

}  // namespace vantor::add
