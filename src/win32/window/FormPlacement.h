#pragma once

#include <windows.h>

#include "form/Form.h"

namespace vantor::win32 {

class FormWindow;
class Screens;

struct WindowStyles {
  DWORD Style;
  DWORD Extended;
};
[[nodiscard]] WindowStyles StylesOf(const form::Form& form);

/// The place of a form's window, and the number of dots per inch at which it is shown.
class FormPlacement {
 public:
  explicit FormPlacement(FormWindow& owner);

  /// The dots per inch at which the form is shown: those of its screen, or fewer if the form would not fit.
  [[nodiscard]] int Dpi() const { return dpi_; }
  /// The form's bounds in pixels, with the edges of a dialog around them.
  [[nodiscard]] RECT BoundsInPixels() const;

  /// Moves the window to the form's bounds.
  void Apply();
  /// Moves the window to its new place when the resolution of its screen changes.
  void MoveForDpi(int dpi);
  /// Reports the window's place to the form if it was moved.
  void Report();
  /// Takes on the form's current scale. Returns whether it has changed.
  bool TakeScale();
  /// Takes on the resolution of the screen that the window is on, and tells the form if it has changed. Returns whether
  /// it has.
  bool TakeScreenDpi(int dpi);
  /// The same, asking the system for the resolution.
  bool TakeScreenDpi();

 private:
  [[nodiscard]] const Screens& AllScreens() const;
  [[nodiscard]] int ScaledDpi() const;
  void FitInside() const;
  [[nodiscard]] POINT CornerAt(int dpi) const;

  FormWindow& owner_;
  int screenDpi_;
  int dpi_;
  bool placing_ = false;
};

}  // namespace vantor::win32
