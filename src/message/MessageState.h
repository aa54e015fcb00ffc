#pragma once

#include <string>

namespace vantor::message {

/// One message as the dialog shows it, and what its answer does.
struct Message {
  std::wstring CurrentMessageKey;   // a MessageKey's name, or a bug key
  std::wstring CurrentMessageText;  // a text that stands in no catalogue
  std::wstring MessageTitle;
  std::wstring MessageBody;
  std::wstring MessageButtons;
  std::wstring MessageInputs;
  bool EndAfterMessage = false;   // OK ends the program
  bool BugReportPending = false;  // OK opens the mail that reports the bug
};

/// What the messages keep. The message in it mirrors the one that is open, and is empty when none is.
struct MessageState : Message {
  bool ShowDoNotShowBox = false;
  bool DoNotShowState = false;
  bool EnableRememberAfterMessage = false;
  std::wstring UserName;
};

/// The name that stands for no name chosen.
inline constexpr wchar_t NoUserName[] = L"myFriend";

}  // namespace vantor::message
