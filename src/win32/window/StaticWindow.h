#pragma once

#include <string>

#include "form/Static.h"
#include "win32/window/PaintedWindow.h"

namespace vantor::win32 {

/// A STATIC window that paints itself.
class StaticWindow : public PaintedWindow {
 protected:
  StaticWindow(FormWindow& owner, form::Control& control, const std::wstring& text)
      : PaintedWindow(owner, control, {L"STATIC", SS_NOTIFY, text}) {}

  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class LabelWindow final : public StaticWindow {
 public:
  LabelWindow(FormWindow& owner, form::Label& label) : StaticWindow(owner, label, label.Caption()), label_(label) {}

  void Describe(AccessibleState& state) const override;

 protected:
  void Show(form::Property property) override;
  void Paint(Canvas& canvas) override;

 private:
  form::Label& label_;
};

/// An image or a picture box.
class PictureWindow final : public StaticWindow {
 public:
  PictureWindow(FormWindow& owner, form::PictureControl& picture)
      : StaticWindow(owner, picture, {}), picture_(picture) {}

  [[nodiscard]] form::Picture ShownPicture() const override { return picture_.Picture(); }
  void Describe(AccessibleState& state) const override;

 protected:
  void Paint(Canvas& canvas) override;

 private:
  form::PictureControl& picture_;
};

/// A frame: a group box that paints itself and holds other windows.
class FrameWindow final : public PaintedWindow {
 public:
  FrameWindow(FormWindow& owner, form::Frame& frame);

  void Describe(AccessibleState& state) const override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  void Paint(Canvas& canvas) override;

 private:
  void PaintBanner(Canvas& canvas) const;
  LRESULT OnMouseMove(WPARAM buttons, POINT point);
  LRESULT OnRelease();

  form::Frame& frame_;
  bool pressed_ = false;
  POINT pressedAt_{};
};

}  // namespace vantor::win32
