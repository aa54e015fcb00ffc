// What a screen reader hears, read as one reads it; and the keyboard's way through every panel.

#include <doctest/doctest.h>
#include <windows.h>

#include <oleacc.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "desktop/Program.h"

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

/// A window as another program's reader meets it.
class Heard {
 public:
  explicit Heard(HWND window) {
    CoInitialize(nullptr);
    void* object = nullptr;
    if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible, &object))) {
      throw std::runtime_error("a window is not accessible");
    }
    object_ = static_cast<IAccessible*>(object);
  }
  ~Heard() { object_->Release(); }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;

  [[nodiscard]] LONG State() const { return Number(&IAccessible::get_accState); }
  void Act() const { CHECK(object_->accDoDefaultAction(Self()) == S_OK); }

  /// All in one line: role "name" <key> {value} states.
  [[nodiscard]] std::string Line() const {
    const LONG role = Number(&IAccessible::get_accRole);
    const auto known = std::ranges::find(Roles, role, &Names::value_type::first);
    std::string line = known != Roles.end() ? known->second : "?";
    const auto add = [&line](const std::string& begin, const std::string& text, const char* end) {
      if (!text.empty()) line.append(begin).append(text).append(end);
    };
    add(" \"", Text(&IAccessible::get_accName), "\"");
    add(" <", Text(&IAccessible::get_accKeyboardShortcut), ">");
    if (role == ROLE_SYSTEM_TEXT || role == ROLE_SYSTEM_COMBOBOX) line += " {" + Text(&IAccessible::get_accValue) + '}';
    const LONG state = State();
    for (const auto& [bit, word] : States) {
      const bool taken = bit == STATE_SYSTEM_READONLY && role == ROLE_SYSTEM_STATICTEXT;
      if ((state & bit) != 0 && !taken) line += word;
    }
    return line;
  }

 private:
  static VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
  }
  std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*question)(VARIANT, BSTR*)) const {
    BSTR text = nullptr;
    (object_->*question)(Self(), &text);
    std::string told = text != nullptr ? Narrow(text) : std::string();
    SysFreeString(text);
    return told;
  }
  LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*question)(VARIANT, VARIANT*)) const {
    VARIANT number{};
    (object_->*question)(Self(), &number);
    return number.vt == VT_I4 ? number.lVal : -1;
  }

  IAccessible* object_ = nullptr;
};

/// The form that opens beside the bar, once it has the input.
HWND AwaitForm(const Program& program) {
  HWND form = nullptr;
  Await("a form", [&] {
    form = GetForegroundWindow();
    return form != program.Bar() && window::Focus(form) != nullptr;
  });
  return form;
}

/// Walks once round a form by Tab: all that can be used must be on the way.
void CheckTabs(HWND form) {
  std::set<HWND> awaited;
  for (HWND control : window::Controls(form)) {
    const LONG state = Heard(control).State();
    if ((state & STATE_SYSTEM_FOCUSABLE) != 0 && (state & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE)) == 0) {
      awaited.insert(control);
    }
  }
  HWND const first = window::FocusOf(form);
  std::set<HWND> visited;
  HWND control = first;
  do {
    CAPTURE(Heard(control).Line());
    visited.insert(control);
    input::Press(VK_TAB);
    if (awaited.size() == 1) break;
    Await("Tab to go on", [&] { return window::FocusOf(form) != control; });
    control = window::FocusOf(form);
  } while (control != first && visited.size() <= awaited.size());
  CHECK(visited == awaited);
}

}  // namespace

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
    if (row.Key == VK_RETURN) program.TypeLine("p=no such program");
    if (row.Key != 0) input::Press(row.Key);
    HWND form = row.Key == 0 ? bar : AwaitForm(program);
    std::multiset<std::string> lines{Heard(form).Line()};
    for (HWND control : window::Controls(form)) lines.insert(Heard(control).Line());
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
  // A reader opens a panel by acting on its button, and hears that it is open.
  const Heard button(program.Button("Show | Hide Preferences"));
  button.Act();
  AwaitForm(program);
  CHECK_BECOMES(button.Line(), "button \"Show | Hide Preferences\" <F6> pressed");
  button.Act();
  program.AwaitBar();
  CHECK_BECOMES(button.Line(), "button \"Show | Hide Preferences\" <F6>");
}

}  // namespace vantor::desktop
