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

/// Where a form's window stands, and at how many dots per inch it is shown.
class FormPlacement {
 public:
  explicit FormPlacement(FormWindow& owner);

  /// Dots per inch that the form is shown at: its screen's, or less where the form would not fit.
  [[nodiscard]] int Dpi() const { return dpi_; }
  /// The form's bounds in pixels, with the edges of a dialog around them.
  [[nodiscard]] RECT BoundsInPixels() const;

  /// Brings the window to where the form is.
  void Apply();
  /// Moves the window to where it is to be when its screen has another resolution.
  void MoveForDpi(int dpi);
  /// Tells the form where the window is, if it was moved.
  void Report();
  /// The form's window is to be shown at the scale that the form has now. Returns whether that is another one.
  bool TakeScale();
  /// Notes the resolution of the screen that the window is on. Returns whether it is another one, of which the form
  /// then knows.
  bool TakeScreenDpi(int dpi);
  /// The same, asking for it.
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
