// What screen readers are told, read through the same interface.

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "driver/Accessible.h"
#include "driver/Check.h"
#include "driver/Program.h"

namespace vantor::desktop {
namespace {

using Names = std::vector<std::pair<LONG, const wchar_t*>>;
const Names Roles = {
    {ROLE_SYSTEM_ALERT, L"alert"},       {ROLE_SYSTEM_CHECKBUTTON, L"check"}, {ROLE_SYSTEM_CLIENT, L"client"},
    {ROLE_SYSTEM_COMBOBOX, L"combo"},    {ROLE_SYSTEM_DIALOG, L"dialog"},     {ROLE_SYSTEM_GRAPHIC, L"graphic"},
    {ROLE_SYSTEM_GROUPING, L"group"},    {ROLE_SYSTEM_LIST, L"list"},         {ROLE_SYSTEM_PANE, L"pane"},
    {ROLE_SYSTEM_PUSHBUTTON, L"button"}, {ROLE_SYSTEM_RADIOBUTTON, L"radio"}, {ROLE_SYSTEM_STATICTEXT, L"text"},
    {ROLE_SYSTEM_TEXT, L"edit"}};
const Names States = {{STATE_SYSTEM_UNAVAILABLE, L" unavailable"}, {STATE_SYSTEM_FOCUSED, L" focused"},
                      {STATE_SYSTEM_PRESSED, L" pressed"},         {STATE_SYSTEM_CHECKED, L" checked"},
                      {STATE_SYSTEM_READONLY, L" readonly"},       {STATE_SYSTEM_EXPANDED, L" expanded"},
                      {STATE_SYSTEM_COLLAPSED, L" collapsed"},     {STATE_SYSTEM_INVISIBLE, L" invisible"}};

/// Everything that a screen reader says about a control, in one line: role "name" <key> {value} states.
std::wstring Heard(HWND control) {
  const Accessible heard(control);
  const LONG role = heard.Role();
  const auto known = std::ranges::find(Roles, role, &Names::value_type::first);
  std::wstring line = known != Roles.end() ? known->second : L"?";
  if (!heard.Name().empty()) line += L" \"" + heard.Name() + L'"';
  if (!heard.Key().empty()) line += L" <" + heard.Key() + L'>';
  if (role == ROLE_SYSTEM_TEXT || role == ROLE_SYSTEM_COMBOBOX) line += L" {" + heard.Value() + L'}';
  // A label is read-only by nature.
  const LONG state = role == ROLE_SYSTEM_STATICTEXT ? heard.State() & ~STATE_SYSTEM_READONLY : heard.State();
  for (const auto& [bit, word] : States) {
    if ((state & bit) != 0) line += word;
  }
  return line;
}

/// What is announced about the line and the list below it: 's' for each series of changes of the selection, and for the
/// focus the part that gets it, 0 for the line itself.
std::wstring announced;
void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG part, DWORD, DWORD) {
  const bool selection = event == EVENT_OBJECT_TEXTSELECTIONCHANGED;
  if (!selection && event != EVENT_OBJECT_FOCUS) return;
  const std::wstring said = selection ? L"s" : std::to_wstring(part);
  if (GetDlgCtrlID(window) != 0 && !announced.ends_with(said)) announced += said;
}

}  // namespace

TEST_CASE("typing announces the completion, walking the row, and the reader is led back to the line") {
  const Folder folder;
  folder.WriteSettings({.WebUpper = 2});
  folder.WriteData(L"ListWeb", ListBytes({{L"Notes", L"http://a"}, {L"News", L"http://b"}, {L"Net", L"http://c"}}));
  const Program program(folder);
  program.AwaitBar();
  HWINEVENTHOOK const hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_TEXTSELECTIONCHANGED, nullptr, Hear,
                                             window::ProcessOf(program.Bar()), 0, WINEVENT_OUTOFCONTEXT);
  program.Press(VK_F12);
  program.Type(L"w-n");
  CHECK_BECOMES(announced, L"s");
  input::Press(VK_DOWN);
  CHECK_BECOMES(announced, L"s2");
  program.Type(L"e");
  CHECK_BECOMES(announced, L"s2s0");
  input::Press(VK_DOWN);
  CHECK_BECOMES(announced, L"s2s0s2");
  input::Press(VK_F12);
  CHECK_BECOMES(announced, L"s2s0s20");
  UnhookWinEvent(hook);
}

TEST_CASE("every control has a role and a name for a screen reader, its key and its state") {
  const Folder folder;
  folder.Write(L"VantorHelp.exe");
  folder.WriteSettings({.ProgUpper = 0, .Left = 600, .Top = 600});
  folder.WriteData(L"ListProg", ListBytes({{L"notepad", folder.Write(L"a.exe")}}));
  const Program program(folder);
  HWND const bar = program.AwaitBar();
  const auto awaitForm = [&] {
    HWND form = nullptr;  // of one look: a moment later the focus may be with nobody
    Await("a form", [&] { return (form = program.Active()) != nullptr && form != bar; });
    return form;
  };
  std::wstring label(MAX_PATH + 1, L'\0');
  GetVolumeInformationW(L"C:\\", label.data(), MAX_PATH + 1, nullptr, nullptr, nullptr, nullptr, 0);
  label.resize(label.find(L'\0'));
  const std::wstring drive = L"combo \"Drive\" {c:" + (label.empty() ? L"" : L" [" + label + L"]") + L'}';
  const struct {
    WORD Key;  // opens the form; 0 for the bar itself
    std::vector<std::wstring> Lines;
  } rows[] = {
      {0,
       {L"client \"Vantor\"", L"edit \"Command Line\" {Vantor} focused", L"graphic \"Vantor\"",
        L"button \"Exit\" <F10>", L"button \"Minimize\" <F9>", L"button \"Show | Hide Preferences\" <F6>",
        L"button \"Show | Hide Add URL\" <F1> collapsed"}},
      {VK_F2,
       {L"client \"Add To List\"", L"radio \"Prog.\" focused checked", L"radio \"Folder\"", drive + L" collapsed",
        L"list \"Folder\"", L"list \"File\"", L"edit \"Path\" {} readonly",
        L"edit \"Type a Launch Name\" {} unavailable", L"button \"Add\" unavailable"}},
      {VK_F3, {L"client \"Open\"", drive + L" focused collapsed", L"button \"Open\" unavailable"}},
      {VK_F4,
       {L"client \"List\"", L"group \"Program List :\"", L"combo \"Program Name\" {notepad} focused collapsed",
        L"combo \"Program Launch Path\" {" + folder / L"a.exe" + L"} collapsed", L"combo \"Web URL Name\" {} collapsed",
        L"button \"Rename\" unavailable"}},
      {VK_F5, {L"client \"Orbel's Programs\"", L"list \"Orbel's Programs\" focused", L"button \"Open\""}},
      {VK_F6,
       {L"client \"Options\"", L"check \"Start With Windows\" focused", L"check \"Always On Top\" checked",
        L"button \"OK\" unavailable"}},
      {VK_F7, {L"client \"Help\"", L"edit \"Data folder\" {" + folder / L"Vantor" + L"} readonly"}},
      {VK_F8, {L"client \"Code\"", L"button \"Hide\" focused", L"text \"Control Panel Commands :\""}},
      {VK_RETURN,
       {L"dialog \"Message For - Anna\"", L"button \"OK\" focused", L"button \"Cancel\" unavailable",
        L"text \"There was some error. Could not run the program.\""}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Key);
    if (row.Key == VK_RETURN) program.Enter(L"p=no such program");
    if (row.Key > VK_RETURN) input::Press(row.Key);
    HWND const form = row.Key == 0 ? bar : awaitForm();
    std::multiset<std::wstring> lines{Heard(form)};
    for (HWND control : window::Controls(form)) lines.insert(Heard(control));
    for (const std::wstring& line : lines) {
      CAPTURE(line);
      const bool named = line.find(L'"') != line.npos;
      CHECK((named || line == L"pane" || line.ends_with(L"invisible")));
      CHECK(line[0] != L'?');
    }
    for (const std::wstring& line : row.Lines) {
      CAPTURE(line);
      CHECK(lines.contains(line));
    }
    if (row.Key == 0) continue;
    input::Press(VK_ESCAPE);
    program.AwaitBar();
  }
  // A reader opens a panel by the default action of its button, and is told that it is open.
  HWND const button = program.Control(L"CommandMenu(4)");
  CHECK(Accessible(button).Act());
  awaitForm();
  CHECK_BECOMES(Heard(button), L"button \"Show | Hide Preferences\" <F6> pressed");
  CHECK(Accessible(button).Act());
  program.AwaitBar();
  CHECK_BECOMES(Heard(button), L"button \"Show | Hide Preferences\" <F6>");
}

}  // namespace vantor::desktop
