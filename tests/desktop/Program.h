#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "desktop/Basics.h"
#include "desktop/Folder.h"
#include "desktop/Input.h"
#include "desktop/Window.h"

namespace vantor::desktop {

/// A running Vantor, looked at and used from outside; ended by force when a test leaves it running.
class Program {
 public:
  explicit Program(const Folder& folder) : Program(folder.Path("Vantor.exe")) {}
  explicit Program(const std::string& path) : process_(Start('"' + path + '"', path.substr(0, path.rfind('\\')))) {}
  /// One that something else has started.
  explicit Program(DWORD process) : process_{OpenProcess(PROCESS_ALL_ACCESS, FALSE, process), nullptr, process, 0} {
    if (process_.hProcess == nullptr) throw std::runtime_error("no such program runs");
  }
  ~Program() {
    if (Running()) {
      TerminateProcess(process_.hProcess, 99);
      WaitForSingleObject(process_.hProcess, 5000);
    }
    CloseHandle(process_.hProcess);
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The first window that is as it is asked for; null when there is none.
  template <class Condition>
  [[nodiscard]] HWND Find(Condition condition) const {
    for (HWND window : window::OfProcess(process_.dwProcessId)) {
      if (condition(window)) return window;
    }
    return nullptr;
  }
  /// The bar's window, minimised or not.
  [[nodiscard]] HWND Bar() const {
    return Find([](HWND window) { return window::Button(window, "Exit") != nullptr; });
  }
  /// The window of the open message.
  [[nodiscard]] HWND Message() const {
    return Find([](HWND window) {
      const std::string title = window::Text(window);
      return title == "myMessage" || title.starts_with("Message For - ");
    });
  }
  /// Waits until the bar, or a message, is there and has the input. Returns its window.
  HWND AwaitBar() const {
    Await("the bar to have the input", [this] { return window::Focus(Bar()) != nullptr; });
    return Bar();
  }
  HWND AwaitMessage() const {
    Await("a message to have the input", [this] { return window::Focus(Message()) != nullptr; });
    return Message();
  }

  // The bar's text box, left of those of the unfolded box.
  [[nodiscard]] HWND TextMain() const {
    const auto edits = window::OfClass(Bar(), "Edit");
    return edits.empty() ? nullptr : edits.front();
  }
  [[nodiscard]] std::string Line() const { return window::Text(TextMain()); }
  /// The text box with its selection in brackets: "p-[notepad]".
  [[nodiscard]] std::string LineWithSelection() const {
    std::wstring text = Wide(Line());
    const auto selection = static_cast<DWORD>(SendMessageW(TextMain(), EM_GETSEL, 0, 0));
    const std::size_t begin = LOWORD(selection);
    const std::size_t end = HIWORD(selection);
    if (begin < end && end <= text.size()) text.insert(end, L"]").insert(begin, L"[");
    return Narrow(text);
  }
  /// Types a line in place of the one that is there and waits until it stands there, proposals apart.
  void TypeLine(const std::string& line) const {
    input::Press(VK_F12);
    Await("an empty line", [this] { return Line().empty(); });
    input::Type(line);
    // A proposal may make it longer, and change its case.
    Await("the line " + line, [this, typed = Wide(line)] {
      const std::wstring shown = Wide(Line()).substr(0, typed.size());
      const int length = static_cast<int>(typed.size());
      return shown.size() == typed.size() &&
             CompareStringOrdinal(shown.data(), length, typed.data(), length, TRUE) == CSTR_EQUAL;
    });
  }
  /// Types a line and presses Enter.
  void Enter(const std::string& line) const {
    AwaitBar();
    TypeLine(line);
    input::Press(VK_RETURN);
  }

  /// A button of the bar by its accessible name.
  [[nodiscard]] HWND Button(const std::string& name) const { return window::Button(Bar(), name); }
  /// The open message's texts, one after another; "" when there is no message.
  [[nodiscard]] std::string MessageText() const {
    std::string texts;
    for (HWND control : window::Controls(Message())) texts += window::Text(control) + '\n';
    return texts;
  }
  /// Waits for a message that says this, and answers it by a click on one of its words.
  void ExpectMessage(const std::string& text, const std::string& word = "OK") const {
    HWND message = AwaitMessage();
    Await("the text \"" + text + "\" in: " + MessageText(),
          [&] { return MessageText().find(text) != std::string::npos; });
    input::Click(window::Button(message, word));
    Await("the message to close", [message] { return !IsWindowVisible(message); });
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
    input::Press(VK_F10);
    if (AwaitEnd() != 0) throw std::runtime_error("the program failed at its end");
  }

 private:
  PROCESS_INFORMATION process_;
};

/// A panel of a running program's bar.
class Panel {
 public:
  /// The key that opens the panel, and its window's title.
  Panel(const Program& program, WORD key, std::string title) : program_(program), key_(key), title_(std::move(title)) {}

  /// Presses its key, and waits until the panel has the input.
  void Open() const {
    input::Press(key_);
    AwaitInput();
  }
  void AwaitInput() const {
    Await(title_, [this] { return Focus() != nullptr; });
  }
  /// Presses its key again, and waits until the bar has the input.
  void Close() const {
    input::Press(key_);
    program_.AwaitBar();
  }

  /// The panel's window; null while it is not shown.
  [[nodiscard]] HWND Find() const {
    return program_.Find([this](HWND window) { return window::Text(window) == title_; });
  }
  [[nodiscard]] HWND Button(const std::string& text) const { return window::Button(Find(), text); }
  /// The button once it can be pressed, which it may be only when something else is done.
  void Click(const std::string& button) const {
    Await("the button " + button, [&] { return Button(button) != nullptr && IsWindowEnabled(Button(button)); });
    input::Click(Button(button));
  }
  /// The control that has the focus; null when the panel has not got it.
  [[nodiscard]] HWND Focus() const { return window::Focus(Find()); }

 protected:
  const Program& program_;

 private:
  WORD key_;
  std::string title_;
};

}  // namespace vantor::desktop
