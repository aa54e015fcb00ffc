#pragma once

#include <windows.h>

#include "form/Form.h"
#include "form/Scoped.h"
#include "win32/base/Handle.h"
#include "win32/window/FormControls.h"
#include "win32/window/FormDrops.h"
#include "win32/window/FormKeys.h"
#include "win32/window/FormPlacement.h"
#include "win32/window/ToolTips.h"

namespace vantor::win32 {

class ControlWindow;
class Desktop;

/// A form's window: its life and painting. Its parts deal with the controls, keys, drops, place and tool tips.
class FormWindow final : public form::FormWindow {
 public:
  FormWindow(Desktop& desktop, form::Form& form, bool onTaskbar);
  ~FormWindow() override;

  /// The form window with this handle; null for any other handle.
  [[nodiscard]] static FormWindow* From(HWND handle);

  void Changed(form::Property property) override;
  void SetTopMost(bool topMost) override;
  void Drag() override;
  void Activate() override;

  [[nodiscard]] HWND Hwnd() const { return handle_.Get(); }
  [[nodiscard]] win32::Desktop& Desktop() const { return desktop_; }
  [[nodiscard]] form::Form& Form() const { return form_; }
  /// The dots per inch at which the form is shown: those of its screen, or fewer if the form would not fit.
  [[nodiscard]] int Dpi() const { return placement_.Dpi(); }

  /// The control's window with this handle; null for any other handle.
  [[nodiscard]] ControlWindow* Find(HWND handle) const { return controls_.Find(handle); }

  /// The window that this one stays above and is destroyed with.
  [[nodiscard]] HWND OwnerWindow() const { return owner_; }
  void SetOwnerWindow(HWND owner);

  /// Hides the window; from now on it does not access the form or its controls any more.
  void Retire();
  [[nodiscard]] bool Retired() const { return retired_; }

  /// Counts a message of the form or its controls as being handled, for the length of a scope.
  [[nodiscard]] form::Scoped<int> Handling() { return {handling_, handling_ + 1}; }
  [[nodiscard]] bool IsHandling() const { return handling_ > 0; }

  /// Gets the messages for the form and its controls first. Returns true if one needs no further handling.
  bool Preview(const MSG& message);
  /// The mouse moves over the form itself; `buttons` is the wParam of the mouse message.
  void MouseMoves(WPARAM buttons);
  void HideToolTip() const { tips_.Hide(); }
  /// Enables or disables the window, depending on which form is modal.
  void ShowEnabled();
  /// Shows all fonts, colours and places again.
  void Refresh();
  /// The screens, their resolutions or their work areas have changed.
  void ScreensChanged();

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT OnSystemMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void OnActivate(bool active);
  void OnSize(WPARAM kind);
  void OnDpiChanged(int dpi);
  /// Lays everything out again if the scale of the form has changed.
  void TakeScale();
  /// Creates what is still missing: the windows of the other controls, and the outline.
  void Complete();
  void PaintBackground(HDC dc) const;
  void Shape() const;
  void GiveFocus() const;
  void ShowVisible();
  void ShowOnHost();

  win32::Desktop& desktop_;
  form::Form& form_;
  HWND owner_;
  bool retired_ = false;
  bool complete_ = false;
  int handling_ = 0;
  FormPlacement placement_;
  FormKeys keys_;
  FormControls controls_;
  ToolTips tips_;
  FormDrops drops_;
  WindowHandle handle_;  // destroyed before the controls' windows, which are its children
};

}  // namespace vantor::win32
