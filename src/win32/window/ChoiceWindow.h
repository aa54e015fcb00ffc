#pragma once

#include "form/Button.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A check box or an option button: the system draws it, but only the control sets its check mark.
class ChoiceWindow : public ControlWindow {
 public:
  void Refresh() override;
  [[nodiscard]] std::wstring SpokenName() const override { return button_.Caption(); }
  void Act() override { PostClick(); }
  void OnCommand(WORD notification) override;
  HBRUSH OnColor(HDC dc) override;

 protected:
  ChoiceWindow(FormWindow& owner, form::ChoiceButton& button, DWORD style);

  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  [[nodiscard]] bool Chosen() const { return button_.Value(); }

 private:
  form::ChoiceButton& button_;
  bool focusing_ = false;  // a button may report a click when it gets the focus
  BrushHandle backdrop_;
};

class CheckWindow final : public ChoiceWindow {
 public:
  CheckWindow(FormWindow& owner, form::CheckBox& box) : ChoiceWindow(owner, box, BS_CHECKBOX) {}
  void Describe(AccessibleState& state) const override;
};

class OptionWindow final : public ChoiceWindow {
 public:
  OptionWindow(FormWindow& owner, form::OptionButton& button)
      : ChoiceWindow(owner, button, BS_RADIOBUTTON), button_(button) {}
  void Describe(AccessibleState& state) const override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  /// Chooses the next or the previous option button in the same container.
  void ChooseNeighbour(bool backwards);

  form::OptionButton& button_;
};

}  // namespace vantor::win32
