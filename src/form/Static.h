#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "form/Control.h"
#include "form/Picture.h"

namespace vantor::form {

/// Text that the user can't change, on the background of its container. Lines are broken at words and at CR LF.
class Label : public Control {
 public:
  template <class Parent>
  Label(Parent& parent, std::wstring_view name) : Control(parent, name) {
    TakeNoFocus();
  }

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }
  [[nodiscard]] bool Bold() const { return bold_; }
  void SetBold(bool bold) { Update(bold_, bold, Property::Caption); }
  /// A text that is too long ends in an ellipsis instead of being broken.
  [[nodiscard]] bool OneLine() const { return oneLine_; }
  void SetOneLine(bool oneLine) { oneLine_ = oneLine; }  // before the form is shown

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override { return TextSize(caption_, bold_); }

 private:
  std::wstring caption_;
  bool bold_ = false;
  bool oneLine_ = false;
};

/// A box that holds other controls, with a caption on its edge when it has a border.
class Frame : public Control {
 public:
  template <class Parent>
  Frame(Parent& parent, std::wstring_view name) : Control(parent, name) {
    TakeNoFocus();
  }

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }
  [[nodiscard]] bool Border() const { return border_; }
  void SetBorder(bool border) { Update(border_, border, Property::Caption); }
  /// Omits the edge of the border and shows only its caption, at this distance from the left and the top.
  [[nodiscard]] const std::optional<Margins>& CaptionAlone() const { return captionAlone_; }
  void SetCaptionAlone(Twips left, Twips top) { captionAlone_ = Margins{left, top}; }
  /// A coloured strip whose caption informs the user; it holds no controls.
  [[nodiscard]] bool Banner() const { return banner_; }
  void SetBanner(bool banner) { banner_ = banner; }  // before the form is shown

  Event<> Click;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;
  void InputClick() override;

 private:
  std::wstring caption_;
  bool border_ = true;
  bool banner_ = false;
  std::optional<Margins> captionAlone_;
};

/// A control that shows a picture.
class PictureControl : public Control {
 public:
  [[nodiscard]] form::Picture Picture() const { return picture_; }
  void SetPicture(form::Picture picture) { Update(picture_, picture, Property::Picture); }

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 protected:
  using Control::Control;

 private:
  form::Picture picture_;
};

/// A picture. It takes no focus.
class Image : public PictureControl {
 public:
  template <class Parent>
  Image(Parent& parent, std::wstring_view name) : PictureControl(parent, name) {
    TakeNoFocus();
  }
};

/// A picture that can take the focus, so that another control loses it.
class PictureBox : public PictureControl {
 public:
  template <class Parent>
  PictureBox(Parent& parent, std::wstring_view name) : PictureControl(parent, name) {}
};

}  // namespace vantor::form
