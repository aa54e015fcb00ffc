#pragma once

#include "form/Static.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A label, an image or a picture box: a STATIC window that draws itself.
class StaticWindow final : public ControlWindow {
 public:
  StaticWindow(FormWindow& owner, form::Control& control);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  void Paint(Canvas& canvas) override;
};

/// A frame: a group box that draws itself and holds other windows.
class FrameWindow final : public ControlWindow {
 public:
  FrameWindow(FormWindow& owner, form::Frame& frame);

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  void Paint(Canvas& canvas) override;

 private:
  LRESULT OnMouseMove(WPARAM buttons, POINT point);
  LRESULT OnRelease();

  form::Frame& frame_;
  bool pressed_ = false;
  POINT pressedAt_{};
};

}  // namespace vantor::win32
