#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "form/Form.h"

namespace vantor::win32 {

class ControlWindow;
class FormWindow;

/// The windows of a form's controls. A control gets its window when it first becomes visible.
class FormControls {
 public:
  explicit FormControls(FormWindow& owner);
  ~FormControls();
  FormControls(const FormControls&) = delete;
  FormControls& operator=(const FormControls&) = delete;

  /// Creates the window of one visible control, and those of its containers.
  void MakeFirst(form::Control& control);
  /// Creates the missing windows of the visible controls in a container (null: on the form).
  void Make(const form::Control* container);
  /// The control's window with this handle; null for any other handle.
  [[nodiscard]] ControlWindow* Find(HWND handle) const;
  /// Makes all windows show their controls' whole state.
  void Refresh();

 private:
  /// A substitute for the windows of controls that have not been visible yet.
  class Pending final : public form::ControlWindow {
   public:
    explicit Pending(FormControls& controls) : controls_(controls) {}
    void Changed(form::Property property) override {
      if (property == form::Property::Visible) controls_.Make(nullptr);
    }
    void TakeFocus() override {}

   private:
    FormControls& controls_;
  };

  FormWindow& owner_;
  Pending pending_{*this};
  std::vector<std::unique_ptr<win32::ControlWindow>> windows_;
};

}  // namespace vantor::win32
