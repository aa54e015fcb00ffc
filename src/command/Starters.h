#pragma once

#include <string_view>

#include "message/MessageKey.h"
#include "service/Services.h"

namespace vantor::command {

/// Whether a text is free of line breaks, other control characters and marks of text direction. No path, address or
/// number that is typed contains them; if they come from the clipboard or a foreign file, they must not reach the
/// system.
[[nodiscard]] bool IsPlain(std::wstring_view text);

/// The routines that start a target. Each returns "" if it was started, otherwise the key of the message that says
/// what failed. A target that is not plain is not started.
class Starters {
 public:
  explicit Starters(const service::Services& services) : services_(services) {}

  message::MessageKey RunProgramCommand(std::wstring_view commandLine) const;
  /// Passes the path of one program to RunProgramCommand in double quotes, so that no other program is run whose name
  /// is a part of the path if this one is gone.
  message::MessageKey RunProgramFile(std::wstring_view path) const;
  message::MessageKey RunExplorerCommand(std::wstring_view commandLine) const;
  message::MessageKey OpenWithShell(std::wstring_view target) const;
  /// OpenWithShell for a typed web address, and for a path or address from the launch list. The latter is taken
  /// literally: variables are not replaced, and nothing else is opened if a file is gone.
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
