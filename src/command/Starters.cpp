#include "command/Starters.h"

#include <algorithm>
#include <string>

namespace vantor::command {

bool IsPlain(std::wstring_view text) {
  return std::none_of(text.begin(), text.end(),
                      [](wchar_t c) { return c < L' ' || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029; });
}

message::MessageKey Starters::RunProgramCommand(std::wstring_view commandLine) const {
  return Outcome(IsPlain(commandLine) && programs_.StartCommandLine(commandLine), L"MessageProgramRunError");
}

message::MessageKey Starters::RunExplorerCommand(std::wstring_view commandLine) const {
  return Outcome(IsPlain(commandLine) && programs_.StartCommandLine(commandLine), L"MessageProgramExplorerError");
}

message::MessageKey Starters::OpenWithShell(std::wstring_view target) const {
  return Outcome(IsPlain(target) && shell_.Run(target), L"MessageProgramStartError");
}

message::MessageKey Starters::Outcome(bool started, std::wstring_view failure) const {
  if (!started) return message::MessageKey(failure);
  Started();
  return {};
}

message::MessageKey Starters::SendMailTo(std::wstring_view address, std::wstring_view subject,
                                         std::wstring_view body) const {
  constexpr std::wstring_view Scheme = L"mailto:";
  constexpr int GreatestShellError = 32;

  std::wstring link(address);
  const auto sameLetter = [](wchar_t lower, wchar_t letter) {
    return letter == lower || (letter >= L'A' && letter <= L'Z' && letter - L'A' == lower - L'a');
  };
  const std::wstring_view start = address.substr(0, Scheme.size());
  if (!std::equal(Scheme.begin(), Scheme.end(), start.begin(), start.end(), sameLetter)) link.insert(0, Scheme);
  if (!subject.empty()) link.append(L"?subject=").append(subject);
  if (!body.empty()) link.append(subject.empty() ? L"?body=" : L"&body=").append(body);
  return IsPlain(link) && programs_.ShellOpen(link) > GreatestShellError ? L"" : L"MessageProgramStartError";
}

}  // namespace vantor::command
