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
  using Control::Control;

  [[nodiscard]] bool IsFocusable() const override { return false; }
  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }
  [[nodiscard]] bool Bold() const { return bold_; }
  void SetBold(bool bold) { Update(bold_, bold, Property::Caption); }
  /// A text that is too long ends in an ellipsis instead of being broken.
  [[nodiscard]] bool OneLine() const { return oneLine_; }
  void SetOneLine(bool oneLine) { oneLine_ = oneLine; }  // before the form is shown

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override { return TextSize(caption_, bold_); }
  /// Places the label with the height that its text needs at this width, in twips. Returns its lower edge.
  Twips PlaceAt(Twips left, Twips top, Twips width);

 private:
  std::wstring caption_;
  bool bold_ = false;
  bool oneLine_ = false;
};

/// A box that holds other controls, with a caption on its edge when it has a border.
class Frame : public Control {
 public:
  using Control::Control;

  [[nodiscard]] bool IsFocusable() const override { return false; }
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
  using Control::Control;

  [[nodiscard]] form::Picture Picture() const { return picture_; }
  void SetPicture(form::Picture picture) { Update(picture_, picture, Property::Picture); }

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

 private:
  form::Picture picture_;
};

/// A picture that takes no focus.
class Image : public PictureControl {
 public:
  using PictureControl::PictureControl;

  [[nodiscard]] bool IsFocusable() const override { return false; }
};

/// A picture that can take the focus, so that another control loses it.
class PictureBox : public PictureControl {
 public:
  using PictureControl::PictureControl;
};

}  // namespace vantor::form
