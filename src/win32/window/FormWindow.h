#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "form/Form.h"
#include "win32/base/Handle.h"
#include "win32/window/DropTarget.h"
#include "win32/window/ToolTips.h"

namespace vantor::win32 {

class ControlWindow;
class Desktop;

/// A form's window with the windows of its controls.
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
  /// Dots per inch that the form is shown at: its screen's, or less where the form would not fit.
  [[nodiscard]] int Dpi() const { return dpi_; }

  /// The control's window with this handle; null for any other handle.
  [[nodiscard]] ControlWindow* Find(HWND handle) const;

  /// The window that this one stands above and goes away with.
  [[nodiscard]] HWND OwnerWindow() const { return owner_; }
  void SetOwnerWindow(HWND owner);

  /// From here on the form and its controls are not touched any more; the window is hidden.
  void Retire();
  [[nodiscard]] bool Retired() const { return retired_; }

  /// Counts the messages of the form or its controls that are being handled.
  class Handling {
   public:
    explicit Handling(FormWindow& window) : window_(window) { ++window_.handling_; }
    ~Handling() { --window_.handling_; }
    Handling(const Handling&) = delete;
    Handling& operator=(const Handling&) = delete;

   private:
    FormWindow& window_;
  };
  [[nodiscard]] bool IsHandling() const { return handling_ > 0; }

  /// Sees the messages for the form and its controls before they do. Returns true for one that is done with.
  bool Preview(const MSG& message);
  /// Hands a message that a control's window sent its parent back to that control. Returns false when it is none.
  static bool Reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  /// The mouse moves over a free spot, with the buttons of a mouse message's wParam.
  void MouseMoves(WPARAM buttons);
  /// Whether the user may use the form changed.
  void ShowEnabled();
  /// Fonts, colours and places are shown anew.
  void Refresh();
  /// The screens, their resolutions or the room on them are others now.
  void ScreensChanged();

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  /// Stands for the windows of controls that have not been visible yet, and so have none.
  class Unmade final : public form::ControlWindow {
   public:
    explicit Unmade(FormWindow& owner) : owner_(owner) {}
    void Changed(form::Property property) override {
      if (property == form::Property::Visible) owner_.MakeControls(nullptr);
    }
    void TakeFocus() override {}

   private:
    FormWindow& owner_;
  };

  /// Makes the windows that are missing for the visible controls in a container (null: on the form).
  void MakeControls(const form::Control* container);
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  bool OnKey(const MSG& message);
  void OnSize(WPARAM kind);
  void GiveFocus() const;
  [[nodiscard]] POINT CornerAt(int dpi) const;
  void OnDpiChanged(int dpi);
  /// The form is on a screen of this resolution now.
  void TakeScreenDpi(int dpi);
  /// Lays all out for the resolution that the form is to be shown at, if that is another one.
  void TakeScale();

  void AcceptDrops();
  void TakeDrop();
  void ShowVisible();
  /// The form's bounds in pixels of its resolution, with the edges of a dialog around them.
  [[nodiscard]] RECT PlaceInPixels() const;
  void Place();
  void FitInside() const;
  void ReportPlace();

  win32::Desktop& desktop_;
  form::Form& form_;
  int screenDpi_;
  int dpi_;
  HWND owner_;
  bool retired_ = false;
  bool placing_ = false;
  int handling_ = 0;
  std::array<bool, 256> keysDown_{};  // went down while this form had them
  Unmade unmade_{*this};
  std::vector<std::unique_ptr<ControlWindow>> controls_;
  ToolTips tips_;
  WindowHandle handle_;
  std::optional<DropRegistration> drops_;
  form::DroppedItems dropped_;  // not told yet
};

}  // namespace vantor::win32
