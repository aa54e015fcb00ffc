#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "form/Control.h"
#include "form/Picture.h"
#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"
#include "win32/draw/WindowEdge.h"
#include "win32/window/AccessibleState.h"
#include "win32/window/FormWindow.h"

namespace vantor::win32 {

/// The window that mirrors a control. It shows the control's state and reports what the user does to the control.
class ControlWindow : public form::ControlWindow {
 public:
  /// Creates the window for a control inside its container's window.
  static std::unique_ptr<ControlWindow> Make(FormWindow& owner, form::Control& control);
  /// The window of a control; null if it has none yet, or if `control` is null.
  [[nodiscard]] static const ControlWindow* Of(const form::Control* control);
  /// The control's window with this handle; null for any other handle.
  [[nodiscard]] static ControlWindow* From(HWND handle);

  void Changed(form::Property property) final;
  void TakeFocus() override;
  void PaintNow() override;
  [[nodiscard]] std::uintptr_t Handle() const override { return reinterpret_cast<std::uintptr_t>(handle_); }

  [[nodiscard]] HWND Hwnd() const { return handle_; }
  [[nodiscard]] FormWindow& Owner() const { return owner_; }
  [[nodiscard]] form::Control& Control() const { return control_; }
  /// The picture that the window shows, which also appears behind controls in front of it; None for most.
  [[nodiscard]] virtual form::Picture ShownPicture() const { return {}; }

  /// Shows the control's whole state; for a new window, and after a change of the resolution or the user's settings.
  virtual void Refresh();
  /// The text of the tool tip; "" for none.
  [[nodiscard]] virtual std::wstring TipText() const { return control_.ToolTip(); }
  /// What a screen reader calls the window; "" for a mere part of the layout.
  [[nodiscard]] virtual std::wstring SpokenName() const {
    return shownText_.empty() ? control_.AccessibleName() : shownText_;
  }
  /// Whether the window currently handles keys like Escape and Enter itself. Function keys always belong to the form.
  [[nodiscard]] virtual bool KeepsKeys() const { return false; }

  /// Adds what a screen reader is told about this kind of control to what it is told about all kinds.
  virtual void Describe(AccessibleState& state) const = 0;
  /// Performs the default action. Posts it, so that the caller gets its answer first.
  virtual void Act() {}

  // The parts that readers are told about, such as rows, numbered from 1 as usual in that interface.

  /// -1: the parts, if any, are left to the window's class.
  [[nodiscard]] virtual long PartCount() const { return -1; }
  /// 0 for none.
  [[nodiscard]] virtual long SelectedPart() const { return 0; }
  [[nodiscard]] virtual AccessibleState DescribePart(long part) const;
  [[nodiscard]] virtual RECT PartArea(long /*part*/) const { return {}; }
  virtual void ActOnPart(long /*part*/) {}

  // Messages of the window to its parent, handed back to it.

  /// Hands a message that a control's window sent to its parent back to that window. Nothing for other messages.
  static std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);
  virtual void OnCommand(WORD /*notification*/) {}
  virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
  /// Sets the colours of a window that draws itself; returns the brush for its background.
  virtual HBRUSH OnColor(HDC dc);

 protected:
  struct Kind {
    const wchar_t* ClassName = nullptr;
    DWORD Style = 0;
    std::wstring Text = {};
    bool Themed = false;  // whether the system draws at least a part of it in the user's theme
  };
  ControlWindow(FormWindow& owner, form::Control& control, const Kind& kind);

  /// Handles a message. What a derived class does not handle goes to this one, which passes it to the window's class.
  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Default(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// Shows a property that only some kinds have.
  virtual void Show(form::Property /*property*/) {}
  /// Moves the window to the control's bounds.
  virtual void ApplyBounds();
  /// The control's bounds in pixels: x, y, width and height.
  [[nodiscard]] RECT BoundsInPixels() const;

  [[nodiscard]] bool Retired() const { return owner_.Retired(); }
  [[nodiscard]] const win32::Theme& Theme() const;
  [[nodiscard]] double Scale() const { return owner_.Dpi() / 96.0; }
  [[nodiscard]] int Pixels(form::Twips twips) const;
  /// The thickness of drawn lines, in pixels.
  [[nodiscard]] int LineThickness() const { return static_cast<int>(EdgeThickness(Scale())); }
  [[nodiscard]] SIZE ClientSize() const;
  [[nodiscard]] HFONT Font(FontStyle style = FontStyle::Plain) const;
  /// Posts the parent a message that the window, a button, was clicked.
  void PostClick() const;
  void ShowWindowText(const std::wstring& text);
  /// Tells screen readers about a change that the system doesn't notice.
  void Announce(DWORD event) const;
  void Redraw() const;
  /// The colour of the control, or of its container.
  [[nodiscard]] COLORREF BackgroundColor() const;
  [[nodiscard]] COLORREF TextColor() const;
  /// The colour of the window's edge, which shows whether it has the focus.
  [[nodiscard]] COLORREF EdgeColor() const;
  /// Hands Enter to the control if it was pressed now and is not merely held down. Returns whether the message was
  /// Enter.
  bool OnEnter(UINT message, WPARAM key, LPARAM how);
  /// Passes a message on, and draws an edge over the system's own whenever that may have been redrawn.
  LRESULT OnMessageWithEdge(UINT message, WPARAM wParam, LPARAM lParam, int thickness);
  /// Draws what is behind the control: its container's colour, and pictures.
  void DrawBackdrop(Canvas& canvas) const;

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  void LeaveFocus() const;

  FormWindow& owner_;
  form::Control& control_;
  HWND handle_ = nullptr;  // destroyed with its parent, which is destroyed before this object
  WNDPROC classProcedure_ = nullptr;
  RECT placed_{};           // as BoundsInPixels
  std::wstring shownText_;  // the window's text, as far as this object sets it
};

}  // namespace vantor::win32
