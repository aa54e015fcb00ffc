#pragma once

#include <string>
#include <string_view>

#include "form/Control.h"
#include "form/Keys.h"
#include "form/Picture.h"

namespace vantor::form {

class Label;

/// A push button with a caption, a picture, or both.
class CommandButton : public Control {
 public:
  template <class Parent>
  CommandButton(Parent& parent, std::wstring_view name) : Control(parent, name, ControlKind::CommandButton) {}

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);

  /// The pictures of the button's states. Without any the system's own button is shown.
  [[nodiscard]] form::Picture Picture() const { return picture_; }
  [[nodiscard]] form::Picture DownPicture() const { return downPicture_; }
  [[nodiscard]] form::Picture DisabledPicture() const { return disabledPicture_; }
  void SetPicture(form::Picture picture);
  void SetPictures(form::Picture normal, form::Picture down, form::Picture disabled);

  /// A label that is drawn over the button's face instead of beside it, also over a disabled face. The label
  /// then has no window of its own, and its caption is the button's accessible name.
  [[nodiscard]] const Label* FaceLabel() const { return faceLabel_; }
  void SetFaceLabel(const Label& label) { faceLabel_ = &label; }

  /// Does what a click by the user does, also on a hidden button; a disabled button does nothing.
  void DoClick();

  Event<> Click;
  Event<MouseButton> MouseDown;
  Event<MouseButton> MouseUp;

  // The user's doings, reported by the back end.
  void InputClick();
  void InputMouseDown(MouseButton button);
  void InputMouseUp(MouseButton button);

 private:
  std::wstring caption_;
  form::Picture picture_ = form::Picture::None;
  form::Picture downPicture_ = form::Picture::None;
  form::Picture disabledPicture_ = form::Picture::None;
  const Label* faceLabel_ = nullptr;
};

/// What is ticked or not: check boxes and option buttons.
class ChoiceButton : public Control {
 public:
  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  [[nodiscard]] bool Value() const { return value_; }
  virtual void SetValue(bool value) = 0;

  Event<> Click;

  virtual void InputClick() = 0;

 protected:
  using Control::Control;

  /// Whether the value was another one.
  bool ChangeValue(bool value);

 private:
  std::wstring caption_;
  bool value_ = false;
};

/// A box that is ticked or not. Setting the value raises Click, as a click of the user's does.
class CheckBox : public ChoiceButton {
 public:
  template <class Parent>
  CheckBox(Parent& parent, std::wstring_view name) : ChoiceButton(parent, name, ControlKind::CheckBox) {}

  void SetValue(bool value) override;
  void InputClick() override;
};

/// One of the option buttons of its container. Choosing it clears the others, raising Click on itself only.
class OptionButton : public ChoiceButton {
 public:
  template <class Parent>
  OptionButton(Parent& parent, std::wstring_view name) : ChoiceButton(parent, name, ControlKind::OptionButton) {}

  void SetValue(bool value) override;
  void InputClick() override;
};

}  // namespace vantor::form
