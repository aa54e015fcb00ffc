#pragma once

#include <string>

namespace vantor::message {

/// The name of a message of the catalogue, such as L"MessageEmptyList"; "" for none, which is success.
using MessageKey = std::wstring;

/// The slots by which the message to show is handed over, and what its answer leaves.
struct MessageState {
  MessageKey CurrentMessageKey;
  std::wstring CurrentMessageText;
  std::wstring MessageTitle;
  std::wstring MessageBody;
  std::wstring MessageButtons;
  std::wstring MessageInputs;
  bool EndAfterMessage = false;
  bool BugReportPending = false;
  bool ShowDoNotShowBox = false;
  bool DoNotShowState = false;
  bool EnableRememberAfterMessage = false;
  std::wstring UserName;
};

/// The name that stands for no name chosen.
inline constexpr wchar_t NoUserName[] = L"myFriend";

}  // namespace vantor::message
