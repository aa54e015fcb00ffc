#pragma once

#include "form/Button.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A push button. It draws itself if it has pictures, otherwise it is a standard button.
class ButtonWindow final : public ControlWindow {
 public:
  ButtonWindow(FormWindow& owner, form::CommandButton& button);

  void Describe(AccessibleState& state) const override;
  void Act() override { PostClick(); }
  void OnCommand(WORD notification) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;

 private:
  void DrawContent(Canvas& canvas, RECT area, const Box& box, const Palette::Face& face) const;
  void SetHot(bool hot);
  LRESULT OnMouseButton(UINT message, WPARAM wParam, LPARAM lParam);

  form::CommandButton& button_;
  bool hot_ = false;  // the mouse is over it
};

}  // namespace vantor::win32
