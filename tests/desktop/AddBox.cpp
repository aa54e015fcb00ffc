#include "desktop/AddBox.h"

#include <algorithm>

#include "desktop/Input.h"
#include "desktop/Text.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {

void AddBox::Open(WORD key) const {
  input::Press(key);
  Await("the box", [this] { return Find() != nullptr && window::HasInput(Find()); });
}

HWND AddBox::Find() const {
  const auto windows = window::OfProcess(window::ProcessOf(program_.Bar()));
  const auto found = std::find_if(windows.begin(), windows.end(), [](HWND one) {
    return window::Text(one) == "Add To List" || window::Text(one) == "Open";
  });
  return found == windows.end() ? nullptr : *found;
}

HWND AddBox::Button(const std::string& text) const {
  const auto controls = window::Controls(Find());
  const auto found = std::find_if(controls.begin(), controls.end(), [&](HWND control) {
    return window::ClassName(control) == "Button" && window::Text(control) == text;
  });
  return found == controls.end() ? nullptr : *found;
}

void AddBox::Click(const std::string& button) const { input::Click(window::Middle(Button(button))); }

void AddBox::AwaitBanner(const std::string& kind) const {
  Await("the banner", [&] { return Button(kind + " Added To List : Click To Hide") != nullptr; });
}

std::string AddBox::Path() const { return window::Text(PathBox()); }

std::string AddBox::Name() const { return window::Text(NameBox()); }

std::string AddBox::Drive() const { return window::Text(window::Control(Find(), "ComboBox")); }

void AddBox::AwaitNameFocus() const {
  Await("the focus on the name", [this] { return window::FocusOf(Find()) == NameBox(); });
}

void AddBox::ChooseDrive(char letter) const {
  input::Click(window::Middle(window::Control(Find(), "ComboBox")));
  input::Type(std::string(1, letter));
  const std::string chosen = Narrow({static_cast<wchar_t>(letter | ' '), L':'});
  Await("the drive, or a message", [&] { return Drive().starts_with(chosen) || program_.Message() != nullptr; });
  if (program_.Message() == nullptr) input::Press(VK_RETURN);
}

void AddBox::Enter(const std::string& folder) const { input::DoubleClick(Entry(OfClass("ListBox", 0), folder)); }

void AddBox::Pick(const std::string& file) const { input::Click(Entry(FileList(), file)); }

void AddBox::DoublePick(const std::string& file) const { input::DoubleClick(Entry(FileList(), file)); }

void AddBox::Add(const std::string& name) const {
  AwaitNameFocus();
  input::Type(name);
  CHECK_BECOMES(Name(), name);
  input::Press(VK_RETURN);
}

HWND AddBox::OfClass(const std::string& name, std::size_t index) const {
  const auto controls = window::OfClass(Find(), name);
  return index < controls.size() ? controls[index] : nullptr;
}

POINT AddBox::Entry(HWND list, const std::string& text) {
  LRESULT index = LB_ERR;
  Await(text + " in the list", [&] {
    index =
        SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(Wide(text).c_str()));
    return index != LB_ERR;
  });
  RECT item = {};
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
  POINT middle{(item.left + item.right) / 2, (item.top + item.bottom) / 2};
  ClientToScreen(list, &middle);
  return middle;
}

}  // namespace vantor::desktop
