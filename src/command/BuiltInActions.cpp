#include "command/BuiltInActions.h"

#include <algorithm>

#include "command/CodeTables.h"
#include "command/Starters.h"
#include "state/Environment.h"

namespace vantor::command {

namespace {

/// Null for a word that starts nothing.
const ControlPanelWord* PageOf(const service::Services& services, std::wstring_view word) {
  const std::wstring wanted = services.Language.Lower(word);
  const auto page = std::find_if(ControlPanelNames.begin(), ControlPanelNames.end(), [&](const auto& entry) {
    return !entry.CommandLine.empty() && services.Language.Lower(entry.Word) == wanted;
  });
  return page != ControlPanelNames.end() ? &*page : nullptr;
}

}  // namespace

std::wstring GetSpecialFolderPath(const service::Services& services, std::wstring_view word) {
  constexpr std::wstring_view Fallback = L"MyDocuments";
  const std::wstring wanted = services.Language.Lower(word);
  const auto name = std::find_if(SpecialFolderNames.begin(), SpecialFolderNames.end(),
                                 [&](std::wstring_view entry) { return services.Language.Lower(entry) == wanted; });
  std::wstring path;
  if (name != SpecialFolderNames.end()) path = services.ScriptShell.SpecialFolder(*name);
  return path.empty() ? services.ScriptShell.SpecialFolder(Fallback) : path;
}

bool IsControlPanelPage(const service::Services& services, std::wstring_view word) {
  return PageOf(services, word) != nullptr;
}

message::MessageKey OpenControlPanelApplet(const service::Services& services, std::wstring_view word) {
  const ControlPanelWord* const page = PageOf(services, word);
  const bool started = page == nullptr || services.Programs.StartCommandLine(page->CommandLine);
  return started ? message::MessageKey() : message::MessagePanelOpenError;
}

std::wstring DialNumber(const service::Services& services, std::wstring_view number) {
  constexpr std::wstring_view NotValid = L"The phone number is not valid.";
  if (!IsPlain(number)) return std::wstring(NotValid);
  switch (services.Programs.RequestMakeCall(number, state::ProductName)) {
    case 0:
      return {};
    case -4:  // TAPIERR_INVALDESTADDRESS
      return std::wstring(NotValid);
    case -3:  // TAPIERR_REQUESTQUEUEFULL
      return L"The queue of pending Windows Telephony dialing requests is full.";
    case -2:  // TAPIERR_NOREQUESTRECIPIENT
      return L"No Windows Telephony dialing application is running and none could be started.";
    default:
      return L"Could not dial the number. Reason unknown.";
  }
}

}  // namespace vantor::command
