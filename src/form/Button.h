#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "form/Control.h"
#include "form/Keys.h"
#include "form/Picture.h"

namespace vantor::form {

/// Pressed: the panel that the button opens is open. Folded and Unfolded: the same for a box that unfolds beside it.
enum class ButtonState { Plain, Pressed, Folded, Unfolded };

/// A push button with a caption, a picture, or both.
class CommandButton : public Control {
 public:
  using Control::Control;

  /// The word on the button, drawn over its picture, including the picture of the disabled state.
  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }

  /// The pictures for the states of the button. Without them it looks like a standard Windows button. A button with
  /// both a drawing and a caption has the caption below the drawing, in small letters.
  static constexpr Twips DrawingSide = 240;
  static constexpr Twips DrawingTop = 45;  // from the face's upper edge, over a caption
  [[nodiscard]] form::Picture Picture() const { return picture_; }
  [[nodiscard]] form::Picture DownPicture() const { return downPicture_; }
  [[nodiscard]] form::Picture DisabledPicture() const { return disabledPicture_; }
  void SetPicture(form::Picture picture) { Update(picture_, picture, Property::Picture); }
  void SetPictures(form::Picture normal, form::Picture down, form::Picture disabled);

  /// The distance from the bounds to the drawn face. The margins can be clicked too.
  [[nodiscard]] const Margins& FaceMargins() const { return faceMargins_; }
  void SetFaceMargins(const Margins& margins) { faceMargins_ = margins; }

  /// Makes it a button of a panel or message: with the pictures of all its states, and a caption.
  void Dress(std::wstring_view caption);
  /// The width at which such a button shows its whole caption, in twips.
  [[nodiscard]] Twips FullWidth() const;

  /// The state of what the button opens; shown on its face and reported to screen readers.
  [[nodiscard]] ButtonState State() const { return state_; }
  void SetState(ButtonState state) { Update(state_, state, Property::Picture); }

  /// Has the effect of a click by the user, even on a hidden button. A disabled button does nothing.
  void DoClick();

  Event<> Click;
  Event<MouseButton> MouseDown;
  Event<MouseButton> MouseUp;

  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  [[nodiscard]] Size LeastSize() const override;

  // What the user does, as reported by the back end.
  void InputClick() override;
  void InputCharacter(wchar_t character) override;
  void InputMouseDown(MouseButton button);
  void InputMouseUp(MouseButton button);

 private:
  std::wstring caption_;
  form::Picture picture_;
  form::Picture downPicture_;
  form::Picture disabledPicture_;
  Margins faceMargins_;
  ButtonState state_ = ButtonState::Plain;
};

/// A control that is either checked or not: check boxes and option buttons.
class ChoiceButton : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }
  [[nodiscard]] bool Value() const { return value_; }
  virtual void SetValue(bool value) = 0;

  [[nodiscard]] Size LeastSize() const override;

  Event<> Click;

 protected:
  /// Returns whether the value has changed.
  bool ChangeValue(bool value) { return Update(value_, value, Property::Value); }

 private:
  std::wstring caption_;
  bool value_ = false;
};

/// A check box. Changing the value raises Click, just as a click by the user does.
class CheckBox : public ChoiceButton {
 public:
  using ChoiceButton::ChoiceButton;

  Event<> Enter;  // the Enter key was pressed; it does not toggle the box

  void SetValue(bool value) override;
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  void InputClick() override;
  void InputCharacter(wchar_t character) override;
};

/// One of the option buttons of its container. Choosing it clears the others, raising Click on itself only.
class OptionButton : public ChoiceButton {
 public:
  using ChoiceButton::ChoiceButton;

  void SetValue(bool value) override;
  void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }
  void InputClick() override;
  [[nodiscard]] OptionButton* AsOptionButton() override { return this; }
  /// All option buttons in the same container, including this one, in the order in which they were created.
  [[nodiscard]] std::vector<OptionButton*> Group();
};

}  // namespace vantor::form
