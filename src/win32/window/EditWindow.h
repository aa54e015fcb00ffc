#pragma once

#include "form/TextBox.h"
#include "win32/window/ControlWindow.h"
#include "win32/window/Wheel.h"

namespace vantor::win32 {

/// A text box: an EDIT window in which the control has the last word about text and selection.
class EditWindow final : public ControlWindow {
 public:
  EditWindow(FormWindow& owner, form::TextBox& box);

  void Refresh() override;
  void Describe(AccessibleState& state) const override;
  [[nodiscard]] bool KeepsKeys() const override { return box_.Composing(); }
  /// Not its text.
  [[nodiscard]] std::wstring SpokenName() const override { return box_.AccessibleName(); }
  void OnCommand(WORD notification) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;

 private:
  /// What a message comes to; the edit's own work is done when it returns.
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
  int depth_ = 0;          // messages that the edit handles just now, one inside the other
  bool edited_ = false;    // the text changed by the user since it was last reported
  bool composed_ = false;  // an input method has ended composing, not told yet
  bool showing_ = false;
  Wheel wheel_;
};

}  // namespace vantor::win32
