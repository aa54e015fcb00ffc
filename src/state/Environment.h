#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantor::state {

inline constexpr std::wstring_view ProductName = L"Vantor";
inline constexpr std::wstring_view ApplicationTitle = L"Vantor Orbel";
inline constexpr std::wstring_view VersionText = L"Version 2.0";

/// Full paths of the data files. Those of the other mode are "".
struct DataFilePaths {
  std::wstring Set;
  std::wstring User;  // fixed-disk mode only
  std::wstring ListFile;
  std::wstring ListFold;
  std::wstring ListProg;
  std::wstring ListWeb;
  // removable-media mode only
  std::wstring MediaSet;
  std::wstring MachineIdentityFile;
  std::wstring MachineFile;
  std::wstring MachineFold;
  std::wstring MachineProg;

  /// The list files of the mode.
  [[nodiscard]] std::vector<std::wstring_view> Lists() const {
    std::vector<std::wstring_view> lists{ListFile, ListFold, ListProg, ListWeb};
    if (!MachineFile.empty()) lists.insert(lists.end(), {MachineFile, MachineFold, MachineProg});
    return lists;
  }
};

/// One of the maker's other programs.
struct Companion {
  std::wstring Name;
  std::wstring Path;
};

/// Facts that the start sequence determines once and everything else reads.
struct Environment {
  std::wstring WindowsFolder;  // with its trailing backslash; "" when it can't be found
  std::wstring WindowsFolderUpper;
  std::wstring WindowsDriveLetter;

  std::wstring ProgramFolder;  // with its trailing backslash
  std::wstring ProgramFolderUpper;
  std::wstring DriveRoot;      // up to and including the first backslash of ProgramFolder
  std::wstring DriveTypeText;  // "Fixed", "Removable", …; "" for a drive that can't be classified

  bool RunMode = false;           // true: removable media, false: fixed disk
  std::wstring MediaDriveLetter;  // upper-case letter of the program's drive, in both modes
  std::wstring DataFolder;        // without a trailing backslash
  DataFilePaths Files;

  bool MachineUnknown = false;     // removable media: no computer has been remembered yet
  bool MachineRemembered = false;  // removable media: this computer is the remembered one

  std::vector<Companion> Companions;  // no two with the same name; the help program is the last

  bool Starting = false;
  bool FirstStart = false;
};

}  // namespace vantor::state
