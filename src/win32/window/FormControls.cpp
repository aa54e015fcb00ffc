#include "win32/window/FormControls.h"

#include <algorithm>

#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

FormControls::FormControls(FormWindow& owner) : owner_(owner) {
  for (form::Control* control : owner_.Form().Controls()) control->AttachWindow(&pending_);
}

FormControls::~FormControls() = default;

void FormControls::MakeFirst(form::Control& control) {
  if (control.Container() != nullptr) MakeFirst(*control.Container());
  if (control.Window() == &pending_ && control.Visible()) {
    windows_.push_back(win32::ControlWindow::Make(owner_, control));
  }
}

void FormControls::Make(const form::Control* container) {
  const std::vector<form::Control*>& controls = owner_.Form().Controls();
  auto behind = std::count_if(controls.begin(), controls.end(), [&](const form::Control* control) {
    return control->Container() == container && win32::ControlWindow::Of(control) != nullptr;
  });
  // From front to back, because the system puts a new window behind its siblings.
  HWND before = HWND_TOP;
  for (auto next = controls.rbegin(); next != controls.rend(); ++next) {
    form::Control* const control = *next;
    if (control->Container() != container) continue;
    if (control->Window() == &pending_ && control->Visible()) {
      windows_.push_back(win32::ControlWindow::Make(owner_, *control));
      if (behind > 0) {
        SetWindowPos(windows_.back()->Hwnd(), before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
      }
    } else if (win32::ControlWindow::Of(control) != nullptr) {
      --behind;
    }
    if (const auto* window = win32::ControlWindow::Of(control)) before = window->Hwnd();
  }
  for (const form::Control* control : controls) {
    if (control->Container() == container && win32::ControlWindow::Of(control) != nullptr) Make(control);
  }
}

ControlWindow* FormControls::Find(HWND handle) const {
  const auto found =
      std::find_if(windows_.begin(), windows_.end(), [&](const auto& window) { return window->Hwnd() == handle; });
  return found != windows_.end() ? found->get() : nullptr;
}

void FormControls::Refresh() {
  for (const auto& window : windows_) window->Refresh();
}

}  // namespace vantor::win32
