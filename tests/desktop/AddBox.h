#pragma once

#include <windows.h>

#include <string>

#include "desktop/Program.h"

namespace vantor::desktop {

/// The box by which a running program's user adds items, or opens files, and what a person does in it.
class AddBox {
 public:
  explicit AddBox(const Program& program) : program_(program) {}

  /// Opens it by its hot key, and waits until it has the input.
  void Open(WORD key = VK_F2) const;
  /// Its window while it is shown; null otherwise.
  [[nodiscard]] HWND Find() const;
  /// A button, option or banner by its text; null while it is not shown.
  [[nodiscard]] HWND Button(const std::string& text) const;
  void Click(const std::string& button) const;
  void AwaitBanner(const std::string& kind) const;

  [[nodiscard]] HWND PathBox() const { return OfClass("Edit", 0); }
  [[nodiscard]] HWND NameBox() const { return OfClass("Edit", 1); }
  [[nodiscard]] HWND FileList() const { return OfClass("ListBox", 1); }
  [[nodiscard]] std::string Path() const;
  [[nodiscard]] std::string Name() const;
  /// The drive shown, as the list of drives has it.
  [[nodiscard]] std::string Drive() const;
  void AwaitNameFocus() const;

  /// Chooses a drive by the keyboard.
  void ChooseDrive(char letter) const;
  /// Goes into a folder by a double click.
  void Enter(const std::string& folder) const;
  /// Clicks on a file, once or twice.
  void Pick(const std::string& file) const;
  void DoublePick(const std::string& file) const;
  /// Types a name for what is chosen, and presses Enter.
  void Add(const std::string& name) const;

 private:
  [[nodiscard]] HWND OfClass(const std::string& name, std::size_t index) const;
  /// Where an entry of a list is on the screen, once it is there.
  [[nodiscard]] static POINT Entry(HWND list, const std::string& text);

  const Program& program_;
};

}  // namespace vantor::desktop
