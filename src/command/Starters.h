#pragma once

#include <string_view>

#include "form/Event.h"
#include "message/MessageState.h"
#include "service/Programs.h"
#include "service/ScriptShell.h"

namespace vantor::command {

/// Line breaks and other control characters stand in no path, no address and no number. Where the clipboard or a file
/// that somebody else wrote brings them, the system is not to see them.
[[nodiscard]] bool IsPlain(std::wstring_view text);

/// The routines that start what a target names. Each returns "" when it was started, else the key of the message
/// that says what failed. A target with a control character in it is not started.
class Starters {
 public:
  Starters(service::Programs& programs, service::ScriptShell& shell) : programs_(programs), shell_(shell) {}

  /// Runs when something was started by one of the three below; the bar empties its command line then.
  form::Event<> Started;

  message::MessageKey RunProgramCommand(std::wstring_view commandLine) const;
  message::MessageKey RunExplorerCommand(std::wstring_view commandLine) const;
  message::MessageKey OpenWithShell(std::wstring_view target) const;

  /// Opens a mail to `address`, with or without "mailto:". Subject and body are appended as they are. Does not
  /// count as started, so the command line stays.
  [[nodiscard]] message::MessageKey SendMailTo(std::wstring_view address, std::wstring_view subject,
                                               std::wstring_view body) const;

 private:
  [[nodiscard]] message::MessageKey Outcome(bool started, std::wstring_view failure) const;

  service::Programs& programs_;
  service::ScriptShell& shell_;
};

}  // namespace vantor::command
