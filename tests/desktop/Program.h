#pragma once

#include <windows.h>

#include <string>

#include "desktop/Folder.h"

namespace vantor::desktop {

/// A running Vantor; ended by force when a test leaves it running.
class Program {
 public:
  explicit Program(const Folder& folder);
  /// From a path in UTF-8.
  explicit Program(const std::string& path);
  /// One that something else has started.
  explicit Program(DWORD process);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// The bar's window, minimised or not; null while there is none.
  [[nodiscard]] HWND Bar() const;
  /// The open message's window; null while there is none.
  [[nodiscard]] HWND Message() const;
  /// Waits until the bar, or a message, is there and has the input. Returns its window.
  HWND AwaitBar();
  HWND AwaitMessage();

  // The bar's text box.
  [[nodiscard]] HWND TextMain() const;
  [[nodiscard]] std::string Line() const;
  /// The text box with its selection in brackets: "p-[notepad]".
  [[nodiscard]] std::string LineWithSelection() const;
  /// Types a line in place of the one that is there and waits until it stands there, proposals apart.
  void TypeLine(const std::string& line);

  /// A control of the bar by the beginning of its accessible name ("Exit").
  [[nodiscard]] HWND Button(const std::string& name) const;
  /// The open message's texts, one after another; "" when there is no message.
  [[nodiscard]] std::string MessageText() const;
  /// Waits for a message that says just this, checks it, and closes it.
  void ExpectMessage(const std::string& text);
  /// Clicks on a word of the open message ("OK", "No") and waits until it is gone.
  void AnswerMessage(const std::string& word = "OK");

  [[nodiscard]] bool Running() const;
  /// Waits for the process's end. Returns its exit code.
  DWORD AwaitEnd();
  /// Leaves by F10 and waits for the end.
  void Exit();

 private:
  PROCESS_INFORMATION process_ = {};
};

}  // namespace vantor::desktop
