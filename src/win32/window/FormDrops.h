#pragma once

#include <windows.h>

#include <optional>

#include "form/Form.h"
#include "win32/window/DropTarget.h"

namespace vantor::win32 {

class FormWindow;

/// Handles drops on a form's window. Both steps are deferred by messages that the window sends itself.
class FormDrops {
 public:
  static constexpr UINT_PTR BeginTimer = 1;
  static constexpr UINT DroppedMessage = WM_APP + 1;

  explicit FormDrops(FormWindow& owner) : owner_(owner) {}

  /// Makes the window accept drops once the form has been shown and has nothing else to do, because registering takes
  /// some time.
  void BeginLater() const;
  void End() { registration_.reset(); }
  /// Handles the two messages. Returns false for any other.
  bool OnMessage(UINT message, WPARAM wParam);

 private:
  void Begin();
  void Take();

  FormWindow& owner_;
  std::optional<DropRegistration> registration_;
  form::DroppedItems dropped_;  // not reported yet
};

}  // namespace vantor::win32
