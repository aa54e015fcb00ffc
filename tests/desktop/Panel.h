#pragma once

#include <windows.h>

#include <string>

#include "desktop/Program.h"

namespace vantor::desktop {

/// A panel of a running program's bar, looked at and used from outside.
class Panel {
 public:
  /// The key that opens the panel, and its window's title.
  Panel(const Program& program, WORD key, std::string title) : program_(program), key_(key), title_(std::move(title)) {}

  /// Presses its key, and waits until the panel has the input.
  void Open() const;
  void AwaitInput() const;
  void AwaitClosed() const;

  /// The panel's window; null while it is not shown.
  [[nodiscard]] HWND Find() const;
  [[nodiscard]] HWND Button(const std::string& text) const;
  /// The button once it can be pressed, which it may be only when something else is done.
  void Click(const std::string& button) const;
  /// The control that has the focus; null when the panel has not got it.
  [[nodiscard]] HWND Focus() const;

 private:
  const Program& program_;
  WORD key_;
  std::string title_;
};

}  // namespace vantor::desktop
