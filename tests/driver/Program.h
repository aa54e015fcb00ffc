#pragma once

#include <string>

#include "driver/Folder.h"
#include "driver/Input.h"
#include "driver/List.h"
#include "win32/window/ControlId.h"

namespace vantor::desktop {

/// A running Vantor, looked at and used from outside; ended by force when a test leaves it running. Controls go by
/// their names in the code, and only what is shown is found.
class Program {
 public:
  /// Starts the program in a folder, to which it is copied if it is not there.
  explicit Program(const Folder& folder) : Program(folder.CopyProgram(L"Vantor.exe", L"Vantor.exe")) {}
  explicit Program(const std::wstring& path) : process_(Start(L'"' + path + L'"', path.substr(0, path.rfind(L'\\')))) {}
  ~Program() {
    if (Running()) {
      TerminateProcess(process_.hProcess, 99);
      WaitForSingleObject(process_.hProcess, 5000);
    }
    CloseHandle(process_.hProcess);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The windows that exist; null for those that don't.
  [[nodiscard]] HWND Control(std::wstring_view name) const {
    for (HWND form : window::OfProcess(process_.dwProcessId)) {
      for (HWND control : window::Controls(form)) {
        if (GetWindowLongW(control, GWL_ID) == win32::ControlId(name)) return control;
      }
    }
    return nullptr;
  }
  /// The form with a control.
  [[nodiscard]] HWND FormOf(std::wstring_view control) const { return GetAncestor(Control(control), GA_ROOT); }
  /// The bar, minimised or not, and the open message. The bar's buttons come last when it opens.
  [[nodiscard]] HWND Bar() const { return FormOf(BarControl); }
  [[nodiscard]] HWND Message() const { return FormOf(L"LabelMessage"); }
  [[nodiscard]] std::wstring Line() const { return window::Text(Control(L"TextMain")); }

  /// The form that has the input and whose control has the focus.
  [[nodiscard]] HWND Active() const {
    HWND const front = GetForegroundWindow();
    return window::ProcessOf(front) == process_.dwProcessId && window::Focus(front) != nullptr ? front : nullptr;
  }
  void AwaitInput() const {
    Await("the program to have the input", [this] { return Active() != nullptr; });
  }
  /// Waits for the message, or the panel, that a control is on.
  HWND AwaitForm(std::wstring_view control) const {
    HWND form = nullptr;  // of one look: a moment later it may be another one, or none
    Await("a form to have the input", [&] { return (form = FormOf(control)) != nullptr && Active() == form; });
    return form;
  }
  HWND AwaitBar() const { return AwaitForm(BarControl); }

  /// Waits until the input so far is handled: Windows lets a program paint when there is nothing else left for it.
  void AwaitHandled() const {
    HWND painting = nullptr;
    Await("the input to be handled", [&] {
      HWND const active = Active();
      HWND const form = active != nullptr ? active : Bar();
      if (form == nullptr || IsIconic(form)) return true;
      const bool again = form == painting;
      if (!again) RedrawWindow(form, nullptr, nullptr, RDW_INVALIDATE);
      painting = form;
      return again && !GetUpdateRect(form, nullptr, FALSE);
    });
  }

  /// Keys or clicks, once somebody may use the program, until they are handled.
  template <class Input>
  void Use(Input input) const {
    AwaitInput();
    input();
    AwaitHandled();
  }
  void Press(WORD key) const {
    Use([&] { input::Press(key); });
  }
  void Type(const std::wstring& text) const {
    Use([&] { input::Type(text); });
  }
  /// Types a line in place of the one that is there, and presses Enter.
  void Enter(const std::wstring& line) const {
    AwaitBar();
    Press(VK_F12);
    Await("an empty line", [this] { return Line().empty(); });
    Type(line);
    Press(VK_RETURN);
  }
  /// Clicks on a control as soon as it can be used, or on an entry of a list.
  void Click(std::wstring_view control, const std::wstring& entry = {}, bool twice = false) const {
    Await("the control to be ready", [&] { return Control(control) && IsWindowEnabled(Control(control)); });
    Use([&] {
      if (entry.empty())
        input::Click(Control(control), twice);
      else if (window::DropDownOf(Control(control)) != nullptr)
        Choose(Control(control), entry);
      else
        input::Click(List(Control(control)).AwaitEntry(entry), twice);
    });
  }

  [[nodiscard]] bool Running() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }
  /// Waits for the process's end. Returns its exit code.
  [[nodiscard]] DWORD AwaitEnd() const {
    Await("the program to end", [this] { return !Running(); });
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return code;
  }
  /// Leaves by F10 and waits for the end.
  void Exit() const {
    AwaitBar();
    Press(VK_F10);
    if (AwaitEnd() != 0) throw std::runtime_error("the program failed at its end");
  }

 private:
  static constexpr std::wstring_view BarControl = L"CommandExit";

  /// Drops a combo box down and clicks on the entry.
  static void Choose(HWND combo, const std::wstring& entry) {
    const RECT box = window::Bounds(combo);
    input::Click({box.right - 8, (box.top + box.bottom) / 2});
    HWND const list = window::DropDownOf(combo);
    Await("the list to drop down", [&] { return IsWindowVisible(list); });
    input::Click(List(list).AwaitEntry(entry));
    Await("the list to close", [&] { return !IsWindowVisible(list); });
  }

  PROCESS_INFORMATION process_;
};

}  // namespace vantor::desktop
