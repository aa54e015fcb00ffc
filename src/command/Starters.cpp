#include "command/Starters.h"

#include <string>

namespace vantor::command {

message::MessageKey Starters::RunProgramCommand(std::wstring_view commandLine) const {
  return Outcome(programs_.StartCommandLine(commandLine), L"MessageProgramRunError");
}

message::MessageKey Starters::RunExplorerCommand(std::wstring_view commandLine) const {
  return Outcome(programs_.StartCommandLine(commandLine), L"MessageProgramExplorerError");
}

message::MessageKey Starters::OpenWithShell(std::wstring_view target) const {
  return Outcome(shell_.Run(target), L"MessageProgramStartError");
}

message::MessageKey Starters::Outcome(bool started, std::wstring_view failure) const {
  if (!started) return message::MessageKey(failure);
  if (Started) Started();
  return {};
}

message::MessageKey Starters::SendMailTo(std::wstring_view address, std::wstring_view subject,
                                         std::wstring_view body) const {
  constexpr std::wstring_view Scheme = L"mailto:";
  constexpr int GreatestShellError = 32;

  std::wstring link(address);
  const auto sameLetter = [](wchar_t a, wchar_t lower) { return a == lower || (a >= L'A' && a <= L'Z' && a + 32 == lower); };
  bool hasScheme = link.size() >= Scheme.size();
  for (std::size_t i = 0; hasScheme && i < Scheme.size(); ++i) hasScheme = sameLetter(link[i], Scheme[i]);
  if (!hasScheme) link.insert(0, Scheme);
  if (!subject.empty()) link.append(L"?subject=").append(subject);
  if (!body.empty()) link.append(subject.empty() ? L"?body=" : L"&body=").append(body);
  return programs_.ShellOpen(link) > GreatestShellError ? L"" : L"MessageProgramStartError";
}

}  // namespace vantor::command
