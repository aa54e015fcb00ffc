#pragma once

#include <windows.h>

#include <string>

#include "desktop/Program.h"

namespace vantor::desktop {

/// The box by which a running program's user adds items (F2), or opens files (F3), and what a person does in it.
class AddBox : public Panel {
 public:
  explicit AddBox(const Program& program, WORD key = VK_F2)
      : Panel(program, key, key == VK_F2 ? "Add To List" : "Open") {}

  void AwaitBanner(const std::string& kind) const {
    Await("the banner", [&] { return Button(kind + " Added To List : Click To Hide") != nullptr; });
  }
  [[nodiscard]] HWND NameBox() const { return OfClass("Edit", 1); }
  [[nodiscard]] HWND FileList() const { return OfClass("ListBox", 1); }
  [[nodiscard]] std::string Path() const { return window::Text(OfClass("Edit", 0)); }
  [[nodiscard]] std::string Name() const { return window::Text(NameBox()); }
  /// The drive shown, as the list of drives has it.
  [[nodiscard]] std::string Drive() const { return window::Text(OfClass("ComboBox", 0)); }
  void AwaitNameFocus() const {
    Await("the focus on the name", [this] { return window::FocusOf(Find()) == NameBox(); });
  }

  /// Chooses a drive by the keyboard.
  void ChooseDrive(char letter) const {
    input::Click(OfClass("ComboBox", 0));
    input::Type(std::string(1, letter));
    const std::string chosen{static_cast<char>(letter | ' '), ':'};
    Await("the drive, or a message", [&] { return Drive().starts_with(chosen) || program_.Message() != nullptr; });
    if (program_.Message() == nullptr) input::Press(VK_RETURN);
  }
  /// Goes into a folder by a double click.
  void Enter(const std::string& folder) const { input::DoubleClick(Entry(OfClass("ListBox", 0), folder)); }
  void Pick(const std::string& file) const { input::Click(Entry(FileList(), file)); }
  void DoublePick(const std::string& file) const { input::DoubleClick(Entry(FileList(), file)); }
  /// Types a name for what is chosen, and presses Enter.
  void Add(const std::string& name) const {
    AwaitNameFocus();
    input::Type(name);
    Await("the name", [&] { return Name() == name; });
    input::Press(VK_RETURN);
  }

 private:
  [[nodiscard]] HWND OfClass(const std::string& name, std::size_t index) const {
    const auto controls = window::OfClass(Find(), name);
    return index < controls.size() ? controls[index] : nullptr;
  }
  /// Where an entry of a list is on the screen, once it is there.
  [[nodiscard]] static POINT Entry(HWND list, const std::string& text) {
    const std::wstring wide = Wide(text);
    LRESULT index = LB_ERR;
    Await(text + " in the list", [&] {
      index = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(wide.c_str()));
      return index != LB_ERR;
    });
    RECT item = {};
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
    ClientToScreen(list, &middle);
    return middle;
  }
};

}  // namespace vantor::desktop
