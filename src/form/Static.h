#pragma once

#include <string>
#include <string_view>

#include "form/Control.h"
#include "form/Picture.h"

namespace vantor::form {

/// Text that the user can't change. Lines are broken at words and at CR LF.
class Label : public Control {
 public:
  template <class Parent>
  Label(Parent& parent, std::wstring_view name) : Control(parent, name, ControlKind::Label) {}

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  /// The container shows through instead of BackColor.
  [[nodiscard]] bool Transparent() const { return transparent_; }
  void SetTransparent(bool transparent);
  [[nodiscard]] bool Bold() const { return bold_; }
  void SetBold(bool bold);

 private:
  std::wstring caption_;
  bool transparent_ = true;
  bool bold_ = false;
};

/// A box that holds other controls, with a caption on its edge when it has a border.
class Frame : public Control {
 public:
  template <class Parent>
  Frame(Parent& parent, std::wstring_view name) : Control(parent, name, ControlKind::Frame) {}

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  [[nodiscard]] bool Border() const { return border_; }
  void SetBorder(bool border);

  Event<> Click;

  void InputClick();

 private:
  std::wstring caption_;
  bool border_ = true;
};

/// A picture. It takes no focus.
class Image : public Control {
 public:
  template <class Parent>
  Image(Parent& parent, std::wstring_view name) : Control(parent, name, ControlKind::Image) {}

  [[nodiscard]] form::Picture Picture() const { return picture_; }
  void SetPicture(form::Picture picture);

 private:
  form::Picture picture_ = form::Picture::None;
};

/// A picture that can take the focus, to take it away from something else.
class PictureBox : public Control {
 public:
  template <class Parent>
  PictureBox(Parent& parent, std::wstring_view name) : Control(parent, name, ControlKind::PictureBox) {}

  [[nodiscard]] form::Picture Picture() const { return picture_; }
  void SetPicture(form::Picture picture);

 private:
  form::Picture picture_ = form::Picture::None;
};

}  // namespace vantor::form
