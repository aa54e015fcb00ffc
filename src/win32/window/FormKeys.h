#pragma once

#include <windows.h>

#include <array>

#include "form/Form.h"

namespace vantor::win32 {

/// Hands keys to a form before its controls get them: Tab, and keys that are released.
class FormKeys {
 public:
  explicit FormKeys(form::Form& form) : form_(form) {}

  /// Gets a key message for the form or one of its controls. Returns true if it needs no further handling.
  bool OnKey(const MSG& message);
  /// Forgets the keys that are down now: they will be released in another window.
  void Forget() { down_.fill(false); }

 private:
  form::Form& form_;
  std::array<bool, 256> down_{};  // pressed while this form had the focus
};

}  // namespace vantor::win32
