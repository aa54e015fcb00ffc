#pragma once

#include <string>

namespace vantor::message {

/// One message as the dialog shows it, and what its answer does.
struct Message {
  std::wstring CurrentMessageKey;   // a MessageKey's name, or a bug key
  std::wstring CurrentMessageText;  // a text that is not in the catalogue
  std::wstring MessageTitle;
  std::wstring MessageBody;
  std::wstring MessageButtons;
  std::wstring MessageInputs;
  bool EndAfterMessage = false;   // OK ends the program
  bool BugReportPending = false;  // OK opens the mail that reports the bug
};

/// The state of the messages. The message in it mirrors the open one, and is empty if none is open.
struct MessageState : Message {
  bool ShowDoNotShowBox = false;
  bool DoNotShowState = false;
  bool EnableRememberAfterMessage = false;
  std::wstring UserName;
};

/// The name used for a user who has not chosen one.
inline constexpr wchar_t NoUserName[] = L"myFriend";

}  // namespace vantor::message
