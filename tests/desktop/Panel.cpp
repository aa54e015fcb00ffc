#include "desktop/Panel.h"

#include "desktop/Input.h"
#include "desktop/Wait.h"
#include "desktop/Window.h"

namespace vantor::desktop {

void Panel::Open() const {
  input::Press(key_);
  AwaitInput();
}

void Panel::AwaitInput() const {
  Await(title_, [this] { return Focus() != nullptr; });
}

void Panel::AwaitClosed() const {
  Await(title_ + " to close", [this] { return Find() == nullptr; });
}

HWND Panel::Find() const {
  for (HWND window : window::OfProcess(window::ProcessOf(program_.Bar()))) {
    if (window::Text(window) == title_) return window;
  }
  return nullptr;
}

HWND Panel::Button(const std::string& text) const { return window::Control(Find(), "Button", text); }

void Panel::Click(const std::string& button) const {
  Await("the button " + button, [&] { return Button(button) != nullptr && IsWindowEnabled(Button(button)); });
  input::Click(window::Middle(Button(button)));
}

HWND Panel::Focus() const { return window::Focus(Find()); }

}  // namespace vantor::desktop
