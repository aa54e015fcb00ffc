#pragma once

#include <string_view>

namespace vantor::service {

/// Starting programs, documents and telephone calls without the scripting objects.
class Programs {
 public:
  virtual ~Programs() = default;

  /// Starts a command line with a normal window and the focus, without waiting. If the whole text is the path of an
  /// existing file, exactly that file is started. A program named without a folder is looked for in the system's
  /// folders and those of PATH only. Returns false if nothing was started.
  [[nodiscard]] virtual bool StartCommandLine(std::wstring_view commandLine) = 0;
  /// `ShellExecute` with the verb "open" and show command 5. Returns its result: above 32 is success.
  [[nodiscard]] virtual int ShellOpen(std::wstring_view file) = 0;
  /// `tapiRequestMakeCall`. Returns its result: 0, or a negative error code; also if telephony is not available.
  [[nodiscard]] virtual int RequestMakeCall(std::wstring_view number, std::wstring_view applicationName) = 0;
};

}  // namespace vantor::service
