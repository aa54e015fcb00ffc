#pragma once

#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"

namespace vantor::command {

/// Line breaks, other control characters and marks of text direction stand in no path, no address and no number that
/// somebody types. Where the clipboard or a file that somebody else wrote brings them, the system is not to see them.
[[nodiscard]] bool IsPlain(std::wstring_view text);

/// The routines that start what a target names. Each returns "" when it was started, else the key of the message
/// that says what failed. A target that is not plain is not started.
class Starters {
 public:
  explicit Starters(const service::Services& services) : services_(services) {}

  message::MessageKey RunProgramCommand(std::wstring_view commandLine) const;
  /// Hands the path of one program to RunProgramCommand, in double quotes: where it is gone, nothing else is to run
  /// whose name a part of it is.
  message::MessageKey RunProgramFile(std::wstring_view path) const;
  message::MessageKey RunExplorerCommand(std::wstring_view commandLine) const;
  message::MessageKey OpenWithShell(std::wstring_view target) const;
  /// OpenWithShell for a web address as it is typed, and for a path or an address of the launch list, which stands for
  /// itself: a variable's value is not to get into it, and where a file is gone nothing else is to be opened.
  message::MessageKey OpenWebAddress(std::wstring_view address) const;
  message::MessageKey OpenItem(std::wstring_view target) const;

  /// Opens a mail to `address`, with or without "mailto:". Subject and body are appended as they are.
  [[nodiscard]] message::MessageKey SendMailTo(std::wstring_view address, std::wstring_view subject,
                                               std::wstring_view body) const;

 private:
  [[nodiscard]] bool OpenExactly(std::wstring_view target) const;

  service::Services services_;
};

}  // namespace vantor::command
