#pragma once

#include <windows.h>

#include <optional>

#include "form/Form.h"
#include "win32/window/DropTarget.h"

namespace vantor::win32 {

class FormWindow;

/// What is dropped on a form's window. Both steps are put off by messages of the window to itself.
class FormDrops {
 public:
  static constexpr UINT BeginMessage = WM_APP + 1;
  static constexpr UINT DroppedMessage = WM_APP + 2;

  explicit FormDrops(FormWindow& owner) : owner_(owner) {}

  /// Has the window accept drops once the form has been shown: what this needs of the system takes its time.
  void BeginLater() const;
  void End() { registration_.reset(); }
  /// Handles the two messages; false for any other.
  bool OnMessage(UINT message);

 private:
  void Begin();
  void Take();

  FormWindow& owner_;
  std::optional<DropRegistration> registration_;
  form::DroppedItems dropped_;  // not told yet
};

}  // namespace vantor::win32
