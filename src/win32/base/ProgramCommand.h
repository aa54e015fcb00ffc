#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

struct ProgramCommand {
  std::wstring Program;  // as it is named, without quotes
  std::wstring Arguments;
  std::wstring Path;  // the full path of the program's file; "" when there is none
};

/// Parts a command line where CreateProcess would: after a quoted program, else after the shortest beginning, up to a
/// blank, that is a program; after the first word when there is none. A text that is the path of one file as a whole is
/// that file, blanks or not. A name without a folder is looked for in the system's folders and those of PATH, with
/// ".exe" added where it has no ending: unlike CreateProcess neither beside this program nor in the current folder.
[[nodiscard]] ProgramCommand ParseProgramCommand(std::wstring_view text);

}  // namespace vantor::win32
