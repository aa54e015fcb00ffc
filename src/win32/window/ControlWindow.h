#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "form/Control.h"
#include "form/Picture.h"
#include "win32/draw/Canvas.h"
#include "win32/draw/Theme.h"
#include "win32/draw/WindowEdge.h"
#include "win32/window/AccessibleState.h"
#include "win32/window/FormWindow.h"

namespace vantor::win32 {

/// The window that mirrors a control. It shows the control's state and tells the control what the user does.
class ControlWindow : public form::ControlWindow {
 public:
  /// Makes the window for a control, inside its container's.
  static std::unique_ptr<ControlWindow> Make(FormWindow& owner, form::Control& control);
  /// The window of a control; null when it has none yet, or is null itself.
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
  /// The picture that the window shows, and that shows through what stands before it; None for most.
  [[nodiscard]] virtual form::Picture ShownPicture() const { return {}; }

  /// Shows all of the control's state; for a new window, and after the resolution or the user's settings changed.
  virtual void Refresh();
  /// What the tool tip says; "" for none.
  [[nodiscard]] virtual std::wstring TipText() const { return control_.ToolTip(); }
  /// What a screen reader calls the window; "" for a part of the layout.
  [[nodiscard]] virtual std::wstring SpokenName() const {
    return shownText_.empty() ? control_.AccessibleName() : shownText_;
  }
  /// Whether the window uses keys like Escape and Enter for itself at the moment. The function keys are the form's.
  [[nodiscard]] virtual bool KeepsKeys() const { return false; }

  /// Adds what a screen reader is told of this kind of control to what it is told of all.
  virtual void Describe(AccessibleState& state) const = 0;
  /// Does what the description's Action says. Posts it, so that the caller has its answer first.
  virtual void Act() {}

  // The parts that readers are told of, rows say, counted from 1 as they do.

  /// -1: the window's class tells of its parts, if it has any.
  [[nodiscard]] virtual long PartCount() const { return -1; }
  /// 0 for none.
  [[nodiscard]] virtual long SelectedPart() const { return 0; }
  [[nodiscard]] virtual AccessibleState DescribePart(long part) const;
  [[nodiscard]] virtual RECT PartArea(long /*part*/) const { return {}; }
  virtual void ActOnPart(long /*part*/) {}

  // What the window tells its parent, handed back.

  /// Hands a message that a control's window sent its parent back to that control. Returns false when it is none.
  static bool Reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
  virtual void OnCommand(WORD /*notification*/) {}
  virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
  /// Sets the colours of a window that draws itself; returns the brush for its background.
  virtual HBRUSH OnColor(HDC dc);

 protected:
  struct Kind {
    const wchar_t* ClassName = nullptr;
    DWORD Style = 0;
    std::wstring Text = {};
    bool Themed = false;  // whether the system draws it, or a part of it, in the user's theme
  };
  ControlWindow(FormWindow& owner, form::Control& control, const Kind& kind);

  /// Handles a message. What a kind does not handle goes on to this one, which passes it to the window's class.
  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Default(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  /// Shows a property that only some kinds have.
  virtual void Show(form::Property /*property*/) {}
  /// Brings the window to the control's bounds.
  virtual void ApplyBounds();
  /// The control's bounds in pixels: x, y, width and height.
  [[nodiscard]] RECT BoundsInPixels() const;

  [[nodiscard]] bool Retired() const { return owner_.Retired(); }
  [[nodiscard]] const win32::Theme& Theme() const;
  [[nodiscard]] double Scale() const { return owner_.Dpi() / 96.0; }
  /// Of the lines that are drawn, in pixels.
  [[nodiscard]] int LineThickness() const { return static_cast<int>(EdgeThickness(Scale())); }
  [[nodiscard]] SIZE ClientSize() const;
  [[nodiscard]] HFONT Font(FontStyle style = FontStyle::Plain) const;
  /// Tells the parent later that the window, a button, was clicked.
  void PostClick() const;
  void ShowWindowText(const std::wstring& text);
  /// Tells screen readers that something about the window has changed that the system doesn't see.
  void Announce(DWORD event) const;
  void Redraw() const;
  /// The colour of the control, or of what it stands on.
  [[nodiscard]] COLORREF BackgroundColor() const;
  /// The colour of the window's edge, which tells whether it has the focus.
  [[nodiscard]] COLORREF EdgeColor() const;
  /// Passes a message on, and draws an edge over the system's own wherever that may have been drawn again.
  LRESULT OnMessageWithEdge(UINT message, WPARAM wParam, LPARAM lParam, int thickness);
  /// Draws what stands behind the control: its container's colour and the pictures under it.
  void DrawBackdrop(Canvas& canvas) const;

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam);
  void LeaveFocus() const;

  FormWindow& owner_;
  form::Control& control_;
  HWND handle_ = nullptr;  // goes with its parent, which goes before this object does
  WNDPROC classProcedure_ = nullptr;
  RECT placed_{};           // as BoundsInPixels
  std::wstring shownText_;  // the window's text, as far as this object sets it
};

}  // namespace vantor::win32
