#include "command/Starters.h"

#include <algorithm>
#include <string>

#include "text/Ascii.h"
#include "text/DirectionMarks.h"

namespace vantor::command {

namespace {

constexpr message::MessageKey StartError = message::MessageProgramStartError;

/// A target in the form that the shell takes as one word. A double quote would end it.
std::wstring Quoted(std::wstring_view target) {
  // A backslash before the closing quote would make the quote part of the name. A drive's root has to keep its own.
  if (target.size() > 3 && target.back() == L'\\') target.remove_suffix(1);
  std::wstring quoted = L"\"";
  for (const wchar_t c : target) quoted += c == L'"' ? std::wstring(L"%22") : std::wstring(1, c);
  return quoted += L'"';
}

bool RunQuoted(service::ScriptShell& shell, std::wstring_view target) {
  // Quotes would cut off the end of such an address.
  const bool cut = target.ends_with(L'\\') && target.find(L"://") != target.npos;
  return cut ? shell.Open(target) : shell.Run(Quoted(target));
}

message::MessageKey Outcome(bool started, message::MessageKey failure) {
  return started ? message::MessageKey() : failure;
}

}  // namespace

bool IsPlain(std::wstring_view text) {
  return std::none_of(text.begin(), text.end(), [](wchar_t c) {
    return c < L' ' || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029 || text::IsDirectionMark(c);
  });
}

message::MessageKey Starters::RunProgramCommand(std::wstring_view commandLine) const {
  return Outcome(IsPlain(commandLine) && services_.Programs.StartCommandLine(commandLine),
                 message::MessageProgramRunError);
}

message::MessageKey Starters::RunProgramFile(std::wstring_view path) const {
  // No path contains a double quote. What follows it would be taken for the program's arguments.
  if (path.find(L'"') != path.npos) return message::MessageProgramRunError;
  return RunProgramCommand(L'"' + std::wstring(path) + L'"');
}

message::MessageKey Starters::RunExplorerCommand(std::wstring_view commandLine) const {
  return Outcome(IsPlain(commandLine) && services_.Programs.StartCommandLine(commandLine),
                 message::MessageProgramExplorerError);
}

message::MessageKey Starters::OpenWithShell(std::wstring_view target) const {
  service::FileSystem& files = services_.FileSystem;
  if (!IsPlain(target)) return StartError;
  const bool isPath = files.FileExists(target) || files.FolderExists(target);
  return Outcome(isPath ? OpenExactly(target) : services_.ScriptShell.Run(target), StartError);
}

message::MessageKey Starters::OpenWebAddress(std::wstring_view address) const {
  return Outcome(IsPlain(address) && RunQuoted(services_.ScriptShell, address), StartError);
}

message::MessageKey Starters::OpenItem(std::wstring_view target) const {
  return Outcome(IsPlain(target) && OpenExactly(target), StartError);
}

bool Starters::OpenExactly(std::wstring_view target) const {
  service::ScriptShell& shell = services_.ScriptShell;
  return shell.ExpandVariables(target) == target ? RunQuoted(shell, target) : shell.Open(target);
}

message::MessageKey Starters::SendMailTo(std::wstring_view address, std::wstring_view subject,
                                         std::wstring_view body) const {
  constexpr std::wstring_view Scheme = L"mailto:";
  constexpr int GreatestShellError = 32;

  std::wstring link(address);
  const auto sameLetter = [](wchar_t lower, wchar_t letter) { return lower == text::ToLower(letter); };
  const std::wstring_view start = address.substr(0, Scheme.size());
  if (!std::equal(Scheme.begin(), Scheme.end(), start.begin(), start.end(), sameLetter)) link.insert(0, Scheme);
  if (!subject.empty()) link.append(L"?subject=").append(subject);
  if (!body.empty()) link.append(subject.empty() ? L"?body=" : L"&body=").append(body);
  return Outcome(IsPlain(link) && services_.Programs.ShellOpen(link) > GreatestShellError, StartError);
}

}  // namespace vantor::command
