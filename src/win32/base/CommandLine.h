#pragma once

#include <string>
#include <string_view>

namespace vantor::win32 {

struct CommandLine {
  std::wstring Program;
  std::wstring Arguments;
};

/// Parts a command line where Windows would: after a quoted program, else after the shortest beginning, up to a
/// blank, that is a program on the search path; after the first word when there is none.
[[nodiscard]] CommandLine SplitCommandLine(std::wstring_view text);

}  // namespace vantor::win32
