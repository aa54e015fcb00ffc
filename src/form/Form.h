#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "form/Control.h"
#include "form/Event.h"
#include "form/Keys.h"

namespace vantor::form {

class UserInterface;

/// The window behind a form, made by the back end when the form is first shown.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  /// Shows what changed: Bounds, Visible, Caption, Colors, or Value for the window state.
  virtual void Changed(Property property) = 0;
  /// Makes the window topmost or stops it being so, without moving or activating it.
  virtual void SetTopMost(bool topMost) = 0;
  /// Lets the window manager move the window with the mouse, as with a title bar; returns when the move is over.
  virtual void Drag() = 0;
  virtual void Activate() = 0;
};

/// What the user dropped on a form: files and folders, or the address of a web site.
struct DroppedItems {
  std::vector<std::wstring> Paths;
  std::wstring Address;
};

/// Receives what is dropped on forms.
class DropHandler {
 public:
  virtual void Take(const DroppedItems& items) = 0;

 protected:
  ~DropHandler() = default;  // nobody owns one by this type
};

enum class WindowState { Normal, Minimized };
/// Line: a thin edge inside the bounds.
enum class BorderStyle { None, Line, Dialog };

/// A top-level window with controls. It exists without being loaded; loading runs its Load handler once, and
/// showing it loads it first. Unloading asks no questions, runs the Unload handler and removes the window; the
/// next use loads it again. A form that is destroyed is unloaded, or the program has ended.
class Form {
 public:
  Form(UserInterface& ui, std::wstring_view name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  [[nodiscard]] const std::wstring& Name() const { return name_; }
  [[nodiscard]] UserInterface& Ui() const { return ui_; }

  /// Runs the Load handler if the form is not loaded.
  void Load();
  [[nodiscard]] bool Loaded() const { return loaded_; }
  /// Hides the form, removes its window and runs the Unload handler; does nothing if the form is not loaded.
  void Unload();

  void Show();
  /// Shows the form modally: all other forms ignore input until it is hidden or unloaded. Returns then, or when the
  /// program ends.
  void ShowModal();
  void Hide();
  [[nodiscard]] bool Visible() const { return visible_; }
  /// The form is shown and not minimised, and no other form is modal.
  [[nodiscard]] bool AcceptsInput() const;

  /// The form that this one is attached to, like a drop-down list; null for none. An attached form never has the focus,
  /// is never activated and has no taskbar button; it stays directly above its host, and is topmost whenever the host
  /// is. It can be shown only while the host is active, and is hidden as soon as the user does anything else: moves the
  /// focus, presses a function key, clicks beside the controls, moves, minimises, leaves or closes the host. It is also
  /// hidden when the screens change.
  [[nodiscard]] Form* Host() const { return host_; }
  void SetHost(Form& host) { host_ = &host; }  // before the form is shown

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption) { Update(caption_, caption, Property::Caption); }
  [[nodiscard]] Color BackColor() const { return backColor_; }
  void SetBackColor(Color color) { Update(backColor_, color, Property::Colors); }
  [[nodiscard]] form::BorderStyle BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(form::BorderStyle style) { borderStyle_ = style; }  // before the form is shown

  /// The area that the form covers on the desktop, in twips, without a dialog's title bar.
  [[nodiscard]] const Rect& Bounds() const { return bounds_; }
  /// Moves the form's top left corner to a point on the desktop.
  void MoveTo(Twips left, Twips top);
  /// Moves and resizes the form in one step.
  void SetPlace(Twips left, Twips top, Size inside);
  /// The size of the form's inside, in the twips of its controls.
  [[nodiscard]] Size Inside() const { return inside_; }
  void SetInside(Size inside);
  /// The scale at which the form and everything in it is shown: 1, or the largest smaller scale at which the form fits
  /// the work area of its screen. It always corresponds to a whole number of dots per inch.
  [[nodiscard]] double Scale() const { return scale_; }
  [[nodiscard]] form::WindowState WindowState() const { return windowState_; }
  void SetWindowState(form::WindowState state);
  /// Whether the window stays above all windows that are not topmost. Setting it again re-asserts it.
  [[nodiscard]] bool TopMost() const { return host_ != nullptr ? host_->TopMost() : topMost_; }
  void SetTopMost(bool topMost);
  /// Moves the form into an area by the shortest distance.
  void MoveInto(const Rect& area);
  /// Lets the user drag the form with the mouse button that is held down; Bounds are up to date on return. Does nothing
  /// if the form is being dragged already.
  void Drag();
  void Activate();
  /// Whether the form is the one the user is working in.
  [[nodiscard]] bool Active() const { return active_; }

  /// Whether the form accepts drops.
  [[nodiscard]] bool AcceptsDrops() const { return dropHandler_ != nullptr; }
  /// Makes the form accept drops and hand them to the handler. To be called before the form is shown.
  void AcceptDrops(DropHandler& handler) { dropHandler_ = &handler; }

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  /// The control that has the focus while the form is active; null for none.
  [[nodiscard]] Control* ActiveControl() const { return activeControl_; }
  /// Moves the focus to the next or the previous control in tab order, wrapping around at the ends.
  void MoveFocus(bool backwards);

  // What the user does, as reported by the back end.

  /// A key was released. The form sees it whichever control has the focus.
  void InputKeyUp(Key key);
  void InputMouseMove(MouseButton held);
  /// A mouse button was pressed beside the controls.
  void InputMouseDown() { HideHanging(); }
  void InputMoved(Twips left, Twips top);
  /// The resolution of the screen that the form is on, or the size of texts, has changed.
  void InputResolution();
  void InputScreensChanged();
  /// The user minimised the window by other means than the program's own button, or restored it.
  void InputWindowState(form::WindowState state);
  /// The form has become, or has ceased to be, the one the user is working in.
  void InputActive(bool active);
  /// The user closes the window, or Windows shuts down.
  void InputClose();
  void InputDrop(const DroppedItems& items);
  /// The focus went to a control by mouse, Tab or the window manager.
  void InputFocus(Control* control);

  [[nodiscard]] FormWindow* Window() const { return window_.get(); }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_KeyUp(Key /*key*/) {}
  /// The window was moved from outside, for example by the window manager, which may report the end of a drag late.
  /// While Dragging, this is an intermediate step.
  virtual void Form_Moved() {}
  [[nodiscard]] bool Dragging() const { return dragging_; }
  /// The window was minimised by other means than SetWindowState.
  virtual void Form_Minimized() {}
  /// The screens or their work areas have changed: a visible form is moved into the work area.
  virtual void Form_ScreensChanged();
  /// What has to fit into the screen's work area, in the twips of the controls: the inside plus a dialog's title bar.
  [[nodiscard]] virtual Size RoomNeeded() const;
  /// The mouse moves over the form itself, or over frames, labels and images, which let it through; `held` is the left
  /// button or none.
  virtual void Form_MouseMove(MouseButton /*held*/) {}
  /// Handles the closing of the window; unloads the form unless overridden.
  virtual void Form_Close() { Unload(); }

 private:
  friend class Control;
  friend class UserInterface;
  void NotifyWindow(Property property) const {
    if (window_ != nullptr) window_->Changed(property);
  }
  /// Sets a member and, if its value changes, notifies the window.
  template <class Member, class Value>
  void Update(Member& member, const Value& value, Property property) {
    if (member == value) return;
    member = value;
    NotifyWindow(property);
  }
  void TakeWindowAway();
  void AddControl(Control& control);
  void RemoveControl(Control& control);
  void SetActiveControl(Control* control);
  /// Moves the focus to another control if the one that has it was just hidden or disabled.
  void LeaveUnreachable();
  void LeaveModal();
  /// Hides the forms that are attached to this one.
  void HideHanging();
  /// Chooses the scale that fits the screen the form is on.
  void Fit();

  UserInterface& ui_;
  std::wstring name_;
  std::wstring caption_;
  Rect bounds_;
  Size inside_;
  double scale_ = 1;
  Color backColor_ = Color::ButtonFace;
  form::BorderStyle borderStyle_ = form::BorderStyle::None;
  form::WindowState windowState_ = form::WindowState::Normal;
  Form* host_ = nullptr;
  bool topMost_ = false;
  bool active_ = false;
  bool dragging_ = false;
  DropHandler* dropHandler_ = nullptr;
  bool loaded_ = false;
  bool visible_ = false;
  std::vector<Control*> controls_;
  Control* activeControl_ = nullptr;
  std::unique_ptr<FormWindow> window_;
};

}  // namespace vantor::form
