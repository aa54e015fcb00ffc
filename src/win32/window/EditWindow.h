#pragma once

#include "form/TextBox.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/Wheel.h"

namespace vantor::win32 {

/// A text box: an EDIT window whose text and selection are controlled by the control.
class EditWindow final : public ControlWindow {
 public:
  EditWindow(FormWindow& owner, form::TextBox& box);

  void Refresh() override;
  void Describe(AccessibleState& state) const override;
  [[nodiscard]] bool KeepsKeys() const override { return box_.Composing(); }
  /// Not the text, which is its value.
  [[nodiscard]] std::wstring SpokenName() const override { return box_.AccessibleName(); }
  void OnCommand(WORD notification) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;

 private:
  /// Handles a message; the window class has done its work on return.
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam);
  bool OnEditingKey(form::Key key);
  LRESULT OnCharacter(WPARAM character, LPARAM lParam);
  LRESULT OnWheel(WPARAM wParam, LPARAM lParam);
  void Report();
  [[nodiscard]] std::wstring ShownText() const;
  void ShowText();
  void ShowSelection();
  void LayOut(RECT& inside) const;
  void PaintEdge();

  form::TextBox& box_;
  int depth_ = 0;          // the number of nested messages being handled
  bool edited_ = false;    // the text changed by the user since it was last reported
  bool composed_ = false;  // an input method has ended composing; not reported yet
  bool showing_ = false;
  Wheel wheel_;
};

}  // namespace vantor::win32
