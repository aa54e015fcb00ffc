#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "form/Event.h"
#include "form/Geometry.h"

namespace vantor::form {

class Form;
class TextBox;
class CommandButton;
class CheckBox;
class OptionButton;
class DropDownList;
class OpenList;
class Label;
class Frame;
class PictureControl;
class RowList;

/// One function for each kind of control that looks or acts differently.
class ControlVisitor {
 public:
  virtual void Visit(TextBox& box) = 0;
  virtual void Visit(CommandButton& button) = 0;
  virtual void Visit(CheckBox& box) = 0;
  virtual void Visit(OptionButton& button) = 0;
  virtual void Visit(DropDownList& list) = 0;
  virtual void Visit(OpenList& list) = 0;
  virtual void Visit(Label& label) = 0;
  virtual void Visit(Frame& frame) = 0;
  virtual void Visit(PictureControl& picture) = 0;
  virtual void Visit(RowList& list) = 0;

 protected:
  ~ControlVisitor() = default;  // nobody owns one by this type
};

/// The property of a control that has changed, for the window that mirrors it.
enum class Property {
  Bounds,
  Visible,
  Enabled,
  Colors,
  ToolTip,
  Text,
  Selection,
  Caption,
  Picture,
  Value,
  List,  // any change of a list's entries
  ListIndex,
  Scroll,
};

/// The window behind a control, if there is one. Back ends derive from it.
class ControlWindow {
 public:
  virtual ~ControlWindow() = default;
  /// Shows the control's new state. Never raises an event of the control.
  virtual void Changed(Property property) = 0;
  virtual void TakeFocus() = 0;
  /// Paints what has changed before it returns.
  virtual void PaintNow() {}
  /// The system's handle of the window as a number; 0 if there is none.
  [[nodiscard]] virtual std::uintptr_t Handle() const { return 0; }
};

/// The base of all controls. A control is complete without a window: its state lives here, and a window only shows
/// it and reports what the user does through the Input… functions of the derived classes. Input is ignored while the
/// control, or a frame around it, is disabled or hidden, or while another form is modal.
class Control {
 public:
  /// Adds the control to a form: last in tab order, and in front of the controls added earlier.
  Control(Form& form, std::wstring_view name);
  /// Puts the control into a frame, or another control that serves as a container.
  Control(Control& container, std::wstring_view name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] const std::wstring& Name() const { return name_; }
  /// Calls the visitor's function for this kind of control.
  virtual void Accept(ControlVisitor& visitor) = 0;
  /// An input method is composing: what the user has typed into the control is not final yet.
  [[nodiscard]] virtual bool Composing() const { return false; }
  /// The control itself if it is an option button, else null.
  [[nodiscard]] virtual OptionButton* AsOptionButton() { return nullptr; }
  [[nodiscard]] Form& OwnerForm() const { return form_; }
  /// The frame that holds the control; null if it is placed directly on the form.
  [[nodiscard]] Control* Container() const { return container_; }

  /// Place and size in twips, relative to the container.
  [[nodiscard]] const Rect& Bounds() const { return bounds_; }
  void SetBounds(const Rect& bounds) { Update(bounds_, bounds, Property::Bounds); }
  [[nodiscard]] Twips Left() const { return bounds_.Left; }
  [[nodiscard]] Twips Top() const { return bounds_.Top; }
  [[nodiscard]] Twips Width() const { return bounds_.Width; }
  [[nodiscard]] Twips Height() const { return bounds_.Height; }
  [[nodiscard]] Twips Right() const { return bounds_.Right(); }
  [[nodiscard]] Twips Bottom() const { return bounds_.Bottom(); }

  /// The size needed to show the whole caption on one line, or one line of a box, in the user's font.
  [[nodiscard]] virtual Size LeastSize() const { return {}; }
  /// The usual height of the control, or more if the user's font needs it.
  [[nodiscard]] Twips HeightFor(Twips usual) const { return std::max(usual, LeastSize().Height); }

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible) { SetReachable(visible_, visible, Property::Visible); }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { SetReachable(enabled_, enabled, Property::Enabled); }
  /// Whether the user can use the control now: it and its containers are visible and enabled, its form is shown,
  /// and no other form is modal.
  [[nodiscard]] bool AcceptsInput() const;

  [[nodiscard]] Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Update(backColor_, color, Property::Colors); }
  [[nodiscard]] Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color color) { Update(foreColor_, color, Property::Colors); }

  [[nodiscard]] const std::wstring& ToolTip() const { return toolTip_; }
  void SetToolTip(std::wstring_view text) { Update(toolTip_, text, Property::ToolTip); }
  /// What a screen reader calls the control: the name that was set, otherwise the tool tip's text before "---".
  [[nodiscard]] std::wstring AccessibleName() const;
  void SetAccessibleName(std::wstring_view name) { Update(accessibleName_, name, Property::ToolTip); }

  /// Position in the tab order; 0 comes first. Initially the order of construction.
  [[nodiscard]] int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int index) { tabIndex_ = index; }
  /// Whether Tab stops here, if this kind of control can take the focus.
  [[nodiscard]] bool TabStop() const { return tabStop_; }
  void SetTabStop(bool tabStop) { tabStop_ = tabStop; }

  /// Whether this kind of control can take the focus at all.
  [[nodiscard]] virtual bool IsFocusable() const { return true; }
  /// Gives the control the focus; does nothing if the control is not focusable, or is hidden or disabled. On a form
  /// that has not been shown yet, the control gets the focus when the form is shown.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  /// Shows pending changes on the screen before the program continues.
  void PaintNow() const;

  // What the user does, as reported by the back end.
  virtual void InputClick() {}
  virtual void InputDblClick() {}
  /// A character key, on a desktop without windows, where the control itself applies it.
  virtual void InputCharacter(wchar_t /*character*/) {}

  /// The window that mirrors the control, set by the back end that made it; null without one.
  void AttachWindow(ControlWindow* window) { window_ = window; }
  [[nodiscard]] ControlWindow* Window() const { return window_; }

 protected:
  void NotifyWindow(Property property) const;
  /// Sets a member and, if its value changes, notifies the window. Returns whether it has changed.
  template <class Member, class Value>
  bool Update(Member& member, const Value& value, Property property) {
    if (member == value) return false;
    member = value;
    NotifyWindow(property);
    return true;
  }
  /// For kinds whose inside looks like that of a window, not like that of a button.
  void UseWindowColors() {
    backColor_ = Color::WindowBackground;
    foreColor_ = Color::WindowText;
  }
  /// The size of a text in the user's font, broken into lines only at its own line breaks.
  [[nodiscard]] Size TextSize(std::wstring_view text, bool bold = false) const;

 private:
  /// Sets whether the control is visible, or enabled; both decide where the focus can be.
  void SetReachable(bool& how, bool value, Property property);
  /// The control and all its containers are visible and enabled.
  [[nodiscard]] bool IsReachable() const;

  Form& form_;
  Control* container_ = nullptr;
  std::wstring name_;
  Rect bounds_;
  bool visible_ = true;
  bool enabled_ = true;
  bool tabStop_ = true;
  int tabIndex_;
  Color backColor_ = Color::ButtonFace;
  Color foreColor_ = Color::ButtonText;
  std::wstring toolTip_;
  std::wstring accessibleName_;
  ControlWindow* window_ = nullptr;

  friend class Form;
};

}  // namespace vantor::form
