#pragma once

#include <windows.h>

#include <array>

#include "form/Form.h"

namespace vantor::win32 {

/// Hands keys to a form before its controls see them: Tab, and the keys that are let go.
class FormKeys {
 public:
  explicit FormKeys(form::Form& form) : form_(form) {}

  /// Sees a key message for the form or one of its controls. Returns true for one that is done with.
  bool OnKey(const MSG& message);
  /// The keys that are down now are let go elsewhere.
  void Forget() { down_.fill(false); }

 private:
  form::Form& form_;
  std::array<bool, 256> down_{};  // went down while this form had them
};

}  // namespace vantor::win32
