#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

struct ProgramCommand {
  std::wstring Program;  // as it is written, without quotes
  std::wstring Arguments;
  std::wstring Path;  // the full path of the program's file; "" if there is none
};

/// Splits a command line as CreateProcess does: after a quoted program, otherwise after the shortest beginning, up to a
/// blank, that is a program, or after the first word if there is none. If the whole text is the path of a file, it is
/// that file even if it contains blanks. A name without a folder is searched for in the system's folders and those of
/// PATH, with ".exe" added if it has no extension; unlike CreateProcess, not next to this program or in the current
/// folder.
[[nodiscard]] ProgramCommand ParseProgramCommand(std::wstring_view text);

}  // namespace vantor::win32
