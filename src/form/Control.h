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
  ControlVisitor() = default;
  ~ControlVisitor() = default;
  ControlVisitor(const ControlVisitor&) = default;
  ControlVisitor& operator=(const ControlVisitor&) = default;
};

/// What about a control changed, for the window that mirrors it.
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
  /// The number by which the system knows the window; 0 for none.
  [[nodiscard]] virtual std::uintptr_t Handle() const { return 0; }

 protected:
  ControlWindow() = default;
  ControlWindow(const ControlWindow&) = default;
  ControlWindow& operator=(const ControlWindow&) = default;
};

/// What all controls have. A control is whole without a window: its state lives here, and a window only shows
/// it and reports what the user does through the Input… functions of the derived classes. Input to a control
/// that is disabled, hidden, inside such a frame, or behind a modal form is ignored.
class Control {
 public:
  /// Puts the control on a form, last in tab order and on top of the controls before it.
  Control(Form& form, std::wstring_view name);
  /// Puts the control into a frame, or any other control that serves as container.
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
  /// The frame that the control is in; null for one that stands on the form itself.
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

  /// The size that shows the control's caption whole on one line, or one line of a box, in the user's font.
  [[nodiscard]] virtual Size LeastSize() const { return {}; }
  /// The height that is usual for the control, or what the user's font makes of it.
  [[nodiscard]] Twips HeightFor(Twips usual) const { return std::max(usual, LeastSize().Height); }

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  /// Whether the user can reach the control now: it and its containers are visible and enabled, its form is
  /// shown, and no modal form stands before that form.
  [[nodiscard]] bool AcceptsInput() const;

  [[nodiscard]] Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Update(backColor_, color, Property::Colors); }
  [[nodiscard]] Color ForeColor() const { return foreColor_; }
  void SetForeColor(Color color) { Update(foreColor_, color, Property::Colors); }

  [[nodiscard]] const std::wstring& ToolTip() const { return toolTip_; }
  void SetToolTip(std::wstring_view text) { Update(toolTip_, text, Property::ToolTip); }
  /// What a screen reader calls the control: the name set, else the tool tip's text before "---".
  [[nodiscard]] std::wstring AccessibleName() const;
  void SetAccessibleName(std::wstring_view name) { Update(accessibleName_, name, Property::ToolTip); }

  /// Place in the order in which Tab walks; 0 comes first. Starts as the order of construction.
  [[nodiscard]] int TabIndex() const { return tabIndex_; }
  void SetTabIndex(int index) { tabIndex_ = index; }
  /// Whether Tab stops here; true from the start for the kinds that take the focus.
  [[nodiscard]] bool TabStop() const { return tabStop_; }
  void SetTabStop(bool tabStop) { tabStop_ = tabStop; }

  /// Whether the kind takes the focus at all.
  [[nodiscard]] bool IsFocusable() const { return focusable_; }
  /// Gives the control the focus; does nothing when the control is not focusable, hidden or disabled. On a form
  /// that is not shown yet the control gets the focus when it is.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  /// Has what has changed be seen before the program goes on.
  void PaintNow() const;

  // The user's doings, reported by the back end.
  virtual void InputClick() {}
  virtual void InputDblClick() {}
  /// A character key, on a desktop that leaves to the control what it does.
  virtual void InputCharacter(wchar_t /*character*/) {}

  /// The window that mirrors the control, set by the back end that made it; null without one.
  void AttachWindow(ControlWindow* window) { window_ = window; }
  [[nodiscard]] ControlWindow* Window() const { return window_; }

 protected:
  void NotifyWindow(Property property) const;
  /// Sets a member, and tells the window if it had another value. Returns whether it had.
  template <class Member, class Value>
  bool Update(Member& member, const Value& value, Property property) {
    if (member == value) return false;
    member = value;
    NotifyWindow(property);
    return true;
  }
  /// For kinds that only show something.
  void TakeNoFocus() { focusable_ = tabStop_ = false; }
  /// The size of a text in the user's font, with its lines broken only where it says.
  [[nodiscard]] Size TextSize(std::wstring_view text, bool bold = false) const;

 private:
  /// Visible and enabled, with every container of it.
  [[nodiscard]] bool IsReachable() const;

  Form& form_;
  Control* container_ = nullptr;
  std::wstring name_;
  Rect bounds_;
  bool visible_ = true;
  bool enabled_ = true;
  bool focusable_ = true;
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
