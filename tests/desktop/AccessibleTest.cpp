// What screen readers are told, read through the same interface; and moving through every panel with the keyboard.

#include <doctest/doctest.h>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "driver/Accessible.h"
#include "driver/Program.h"

namespace vantor::desktop {
namespace {

using Names = std::vector<std::pair<LONG, const char*>>;
const Names Roles = {
    {ROLE_SYSTEM_ALERT, "alert"},       {ROLE_SYSTEM_CHECKBUTTON, "check"}, {ROLE_SYSTEM_CLIENT, "client"},
    {ROLE_SYSTEM_COMBOBOX, "combo"},    {ROLE_SYSTEM_DIALOG, "dialog"},     {ROLE_SYSTEM_GRAPHIC, "graphic"},
    {ROLE_SYSTEM_GROUPING, "group"},    {ROLE_SYSTEM_LIST, "list"},         {ROLE_SYSTEM_PANE, "pane"},
    {ROLE_SYSTEM_PUSHBUTTON, "button"}, {ROLE_SYSTEM_RADIOBUTTON, "radio"}, {ROLE_SYSTEM_STATICTEXT, "text"},
    {ROLE_SYSTEM_TEXT, "edit"}};
const Names States = {{STATE_SYSTEM_UNAVAILABLE, " unavailable"}, {STATE_SYSTEM_FOCUSED, " focused"},
                      {STATE_SYSTEM_PRESSED, " pressed"},         {STATE_SYSTEM_CHECKED, " checked"},
                      {STATE_SYSTEM_READONLY, " readonly"},       {STATE_SYSTEM_EXPANDED, " expanded"},
                      {STATE_SYSTEM_COLLAPSED, " collapsed"},     {STATE_SYSTEM_INVISIBLE, " invisible"}};

/// Everything that a screen reader says about a control, in one line: role "name" <key> {value} states.
std::string Heard(HWND control) {
  const Accessible heard(control);
  const LONG role = heard.Role();
  const LONG state = heard.State();
  const auto known = std::ranges::find(Roles, role, &Names::value_type::first);
  std::string line = known != Roles.end() ? known->second : "?";
  const auto add = [&line](const char* begin, const std::wstring& text, char end) {
    if (!text.empty()) line += begin + Narrow(text) + end;
  };
  add(" \"", heard.Name(), '"');
  add(" <", heard.Key(), '>');
  if (role == ROLE_SYSTEM_TEXT || role == ROLE_SYSTEM_COMBOBOX) line += " {" + Narrow(heard.Value()) + '}';
  for (const auto& [bit, word] : States) {
    const bool taken = bit == STATE_SYSTEM_READONLY && role == ROLE_SYSTEM_STATICTEXT;
    if ((state & bit) != 0 && !taken) line += word;
  }
  return line;
}

/// The form next to the bar, once it accepts input.
HWND AwaitForm(const Program& program) {
  Await("a form", [&] { return program.Active() != nullptr && program.Active() != program.Bar(); });
  return program.Active();
}

/// Moves once around a form by Tab, which must reach everything that can be used.
void CheckTabs(HWND form) {
  std::set<HWND> awaited;
  for (HWND control : window::Controls(form)) {
    const LONG state = Accessible(control).State();
    constexpr LONG Unusable = STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE;
    if ((state & (STATE_SYSTEM_FOCUSABLE | Unusable)) == STATE_SYSTEM_FOCUSABLE) awaited.insert(control);
  }
  std::set<HWND> visited;
  HWND control = window::FocusOf(form);
  while (visited.insert(control).second && awaited.size() > 1) {
    CAPTURE(Heard(control));
    input::Press(VK_TAB);
    Await("Tab to go on", [&] { return window::FocusOf(form) != control; });
    control = window::FocusOf(form);
  }
  CHECK(visited == awaited);
}

/// What is announced about the line and the list below it: 's' for each series of changes of the selection, and for the
/// focus the part that gets it, 0 for the line itself.
std::string announced;
void CALLBACK Hear(HWINEVENTHOOK, DWORD event, HWND window, LONG, LONG part, DWORD, DWORD) {
  const bool selection = event == EVENT_OBJECT_TEXTSELECTIONCHANGED;
  if (!selection && event != EVENT_OBJECT_FOCUS) return;
  const std::string said = selection ? "s" : std::to_string(part);
  if (GetDlgCtrlID(window) != 0 && !announced.ends_with(said)) announced += said;
}

}  // namespace

TEST_CASE("typing announces the completion, walking the row, and the reader is led back to the line") {
  const Folder folder;
  folder.WriteSettings({.WebUpper = 2});
  folder.WriteData("ListWeb", ListBytes({{"Notes", "http://a"}, {"News", "http://b"}, {"Net", "http://c"}}));
  const Program program(folder);
  program.AwaitBar();
  HWINEVENTHOOK const hook = SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_TEXTSELECTIONCHANGED, nullptr, Hear,
                                             window::ProcessOf(program.Bar()), 0, WINEVENT_OUTOFCONTEXT);
  program.Press(VK_F12);
  program.Type(L"w-n");
  CHECK_BECOMES(announced, "s");
  input::Press(VK_DOWN);
  CHECK_BECOMES(announced, "s2");
  program.Type(L"e");
  CHECK_BECOMES(announced, "s2s0");
  input::Press(VK_DOWN);
  CHECK_BECOMES(announced, "s2s0s2");
  input::Press(VK_F12);
  CHECK_BECOMES(announced, "s2s0s20");
  UnhookWinEvent(hook);
}

TEST_CASE("every control has a role and a name for a screen reader, its state, and its place in the keyboard's way") {
  const Folder folder;
  folder.Write("a.exe");
  folder.Write("VantorHelp.exe");
  folder.WriteSettings({.OptionMask = 2, .ProgUpper = 0, .Left = 600, .Top = 600});
  folder.WriteData("ListProg", ListBytes({{"notepad", folder.Path("a.exe")}}));
  const Program program(folder);
  HWND bar = program.AwaitBar();
  const struct {
    WORD Key;  // opens the form; 0 for the bar itself
    std::vector<std::string> Lines;
  } rows[] = {
      {0,
       {"client \"Vantor\"", "edit \"Command Line\" {Vantor} focused", "graphic \"Vantor\"", "button \"Exit\" <F10>",
        "button \"Minimize\" <F9>", "button \"Show | Hide Preferences\" <F6>",
        "button \"Show | Hide Add URL\" <F1> collapsed"}},
      {VK_F2,
       {"client \"Add To List\"", "radio \"Prog.\" focused checked", "radio \"Folder\"",
        "combo \"Drive\" {c:} collapsed", "list \"Folder\"", "list \"File\"", "edit \"Path\" {} readonly",
        "edit \"Type a Launch Name\" {} unavailable", "button \"Add\" unavailable"}},
      {VK_F3, {"client \"Open\"", "combo \"Drive\" {c:} focused collapsed", "button \"Open\" unavailable"}},
      {VK_F4,
       {"client \"List\"", "group \"Program List :\"", "combo \"Program Name\" {notepad} focused collapsed",
        "combo \"Program Launch Path\" {" + folder.Path("a.exe") + "} collapsed", "combo \"Web URL Name\" {} collapsed",
        "button \"Rename\" unavailable"}},
      {VK_F5, {"client \"Orbel's Programs\"", "list \"Orbel's Programs\" focused", "button \"Open\""}},
      {VK_F6,
       {"client \"Options\"", "check \"Start With Windows\" focused", "check \"Always On Top\" checked",
        "button \"OK\" unavailable"}},
      {VK_F7, {"client \"Help\"", "edit \"Data folder\" {" + folder.Path("Vantor") + "} readonly"}},
      {VK_F8, {"client \"Code\"", "button \"Hide\" focused", "text \"Control Panel Commands :\""}},
      {VK_RETURN,
       {"dialog \"Message For - Anna\"", "button \"OK\" focused", "button \"Cancel\" unavailable",
        "text \"There was some error. Could not run the program.\""}},
  };
  for (const auto& row : rows) {
    CAPTURE(row.Key);
    if (row.Key == VK_RETURN) program.Enter(L"p=no such program");
    if (row.Key > VK_RETURN) input::Press(row.Key);
    HWND form = row.Key == 0 ? bar : AwaitForm(program);
    std::multiset<std::string> lines{Heard(form)};
    for (HWND control : window::Controls(form)) lines.insert(Heard(control));
    for (const std::string& line : lines) {
      CAPTURE(line);
      const bool named = line.find('"') != std::string::npos;
      CHECK((named || line == "pane" || line.ends_with("invisible")));
      CHECK(line[0] != '?');
    }
    for (const std::string& line : row.Lines) {
      CAPTURE(line);
      CHECK(lines.contains(line));
    }
    CheckTabs(form);
    if (row.Key == 0) continue;
    input::Press(VK_ESCAPE);
    program.AwaitBar();
  }
  // A reader opens a panel by the default action of its button, and is told that it is open.
  HWND const button = program.Control(L"CommandMenu(4)");
  CHECK(Accessible(button).Act());
  AwaitForm(program);
  CHECK_BECOMES(Heard(button), "button \"Show | Hide Preferences\" <F6> pressed");
  CHECK(Accessible(button).Act());
  program.AwaitBar();
  CHECK_BECOMES(Heard(button), "button \"Show | Hide Preferences\" <F6>");
}

}  // namespace vantor::desktop
