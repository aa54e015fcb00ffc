#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "form/Control.h"
#include "form/Event.h"
#include "form/Keys.h"
#include "form/Picture.h"

namespace vantor::form {

class UserInterface;

/// The window behind a form, made by the back end when the form is first shown.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  /// Shows what changed: Bounds, Visible, Caption, Colors, or Value for the window state.
  virtual void Changed(Property property) = 0;
  /// Puts the window into the topmost band or takes it out, without moving or activating it.
  virtual void SetTopMost(bool topMost) = 0;
  /// Lets the window manager move the window with the mouse, as by a title bar; returns when the move has ended.
  virtual void Drag() = 0;
  virtual void Activate() = 0;

 protected:
  FormWindow() = default;
  FormWindow(const FormWindow&) = default;
  FormWindow& operator=(const FormWindow&) = default;
};

/// What the user dropped on a form: files and folders, or the address of a web site.
struct DroppedItems {
  std::vector<std::wstring> Paths;
  std::wstring Address;
};

/// Takes what is dropped on forms.
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
/// showing it loads it first. Unloading asks nobody, runs the Unload handler and takes the window away; the
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
  /// Hides the form, takes its window away and runs the Unload handler; nothing if it is not loaded.
  void Unload();

  void Show();
  /// Shows the form before all others, which ignore input meanwhile; returns when it is hidden or unloaded, or
  /// when the program ends.
  void ShowModal();
  void Hide();
  [[nodiscard]] bool Visible() const { return visible_; }
  /// Shown and not minimised, and no modal form stands before it.
  [[nodiscard]] bool AcceptsInput() const;

  /// The form that this one hangs on, as a drop-down list does; null for none. Such a form never has the focus and is
  /// never activated, is on no taskbar, stands directly above its host and is topmost exactly when that is. It can be
  /// shown while the host is active, and is hidden as soon as the user turns to anything else: moves the focus, presses
  /// a function key, clicks beside the controls, moves, minimises, leaves or closes the host, drops something on it;
  /// and when the screens change.
  [[nodiscard]] Form* Host() const { return host_; }
  void SetHost(Form& host) { host_ = &host; }  // before the form is shown

  [[nodiscard]] const std::wstring& Caption() const { return caption_; }
  void SetCaption(std::wstring_view caption);
  [[nodiscard]] Color BackColor() const { return backColor_; }
  void SetBackColor(Color color);
  [[nodiscard]] form::BorderStyle BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(form::BorderStyle style) { borderStyle_ = style; }  // before the form is shown

  /// What the form covers of the desktop, in twips; a dialog's title bar comes on top.
  [[nodiscard]] const Rect& Bounds() const { return bounds_; }
  /// Moves the form's top left corner to a place on the desktop.
  void MoveTo(Twips left, Twips top);
  /// Moves it and changes its size at once.
  void SetPlace(Twips left, Twips top, Size inside);
  /// The size of the form's inside, in the twips of its controls.
  [[nodiscard]] Size Inside() const { return inside_; }
  void SetInside(Size inside);
  /// How large the form is shown, with all that is in it: 1, or the largest share of that at which what it needs fits
  /// the work area of its screen. It is a whole number of dots per inch there.
  [[nodiscard]] double Scale() const { return scale_; }
  [[nodiscard]] form::WindowState WindowState() const { return windowState_; }
  void SetWindowState(form::WindowState state);
  /// Whether the window is to stand above all windows that are not topmost. Setting it again asserts it anew.
  [[nodiscard]] bool TopMost() const { return host_ != nullptr ? host_->TopMost() : topMost_; }
  void SetTopMost(bool topMost);
  /// Moves the form as little as brings it into an area.
  void MoveInto(const Rect& area);
  /// Lets the user move the form with the mouse button that is held; Bounds are the new ones on return. Does nothing
  /// while the form is dragged already.
  void Drag();
  void Activate();
  /// Whether the user works in the form.
  [[nodiscard]] bool Active() const { return active_; }

  /// Whether things can be dropped on the form.
  [[nodiscard]] bool AcceptsDrops() const { return dropHandler_ != nullptr; }
  /// Lets things be dropped on the form, and hands them on; before the form is shown.
  void AcceptDrops(DropHandler& handler) { dropHandler_ = &handler; }

  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  /// The control that has the focus while the form is active; null for none.
  [[nodiscard]] Control* ActiveControl() const { return activeControl_; }
  /// Moves the focus to the next control in tab order, or the one before; round at the ends.
  void MoveFocus(bool backwards);

  // The user's doings, reported by the back end.

  /// A key let go, seen by the form whichever control has the focus.
  void InputKeyUp(Key key);
  void InputMouseMove(MouseButton held);
  /// The mouse was pressed over a free spot.
  void InputMouseDown() { HideHanging(); }
  void InputMoved(Twips left, Twips top);
  /// The screen that the form is on has another resolution now, or its texts another size.
  void InputResolution();
  void InputScreensChanged();
  /// The user minimised the window by other means than the program's own, or restored it.
  void InputWindowState(form::WindowState state);
  /// The window that the user works in is this one now, or another one.
  void InputActive(bool active);
  /// The user closes the window, or Windows ends.
  void InputClose();
  void InputDrop(const DroppedItems& items);
  /// The focus went to a control by mouse, Tab or the window manager.
  void InputFocus(Control* control);

  [[nodiscard]] FormWindow* Window() const { return window_.get(); }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_KeyUp(Key /*key*/) {}
  /// The window was moved from outside, by the window manager say, which may tell of a drag's end late. While
  /// Dragging, this is a step on the way.
  virtual void Form_Moved() {}
  [[nodiscard]] bool Dragging() const { return dragging_; }
  /// The window was minimised, and not by SetWindowState.
  virtual void Form_Minimized() {}
  /// The screens or the room on them changed: a visible form comes into the room that is left.
  virtual void Form_ScreensChanged();
  /// What has to fit the screen's work area, in the twips of the controls: the inside, with a dialog's title bar.
  [[nodiscard]] virtual Size RoomNeeded() const;
  /// The mouse moves over a free spot: no control is there, or only frames, labels and images, which let it through.
  virtual void Form_MouseMove(MouseButton /*held*/) {}
  /// What closing the window does: an unload unless the form does otherwise.
  virtual void Form_Close() { Unload(); }

 private:
  friend class Control;
  friend class UserInterface;
  void NotifyWindow(Property property) const;
  void TakeWindowAway();
  void AddControl(Control& control);
  void RemoveControl(Control& control);
  void SetActiveControl(Control* control);
  /// Moves the focus on when the control that has it was just hidden or disabled.
  void LeaveUnreachable();
  void LeaveModal();
  /// Hides the forms that hang on this one.
  void HideHanging();
  /// Shows the form at the scale that fits the screen it is on.
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
