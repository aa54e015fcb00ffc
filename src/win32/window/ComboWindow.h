#pragma once

#include <optional>
#include <string>

#include "form/ListControl.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A drop-down list. The entries stay in the control: the window's list only knows their number, and only once it is
/// first dropped, so that lists of many thousands of entries cost nothing until then.
class ComboWindow final : public ControlWindow {
 public:
  ComboWindow(FormWindow& owner, form::DropDownList& list);

  [[nodiscard]] std::wstring TipText() const override;
  [[nodiscard]] bool KeepsKeys() const override { return IsDropped(); }
  void Describe(AccessibleState& state) const override;
  void Act() override;
  void OnCommand(WORD notification) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;
  void ApplyBounds() override;

 private:
  /// The windows and areas that the box consists of.
  [[nodiscard]] COMBOBOXINFO Parts() const;
  [[nodiscard]] bool IsDropped() const { return Default(CB_GETDROPPEDSTATE) != 0; }
  /// The entry that a question to the window's list refers to; null for none.
  [[nodiscard]] const std::wstring* Asked(WPARAM index) const;
  /// The answer to a question of screen readers or other programs that the window's list can't answer.
  [[nodiscard]] std::optional<LRESULT> Answer(UINT message, WPARAM wParam, LPARAM lParam) const;
  /// Gets the messages of the window's list before the list does.
  static LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam);
  bool OnKey(WPARAM key);
  bool OnCharacter(wchar_t character);
  void FitList();
  void FitWidth();

  form::DropDownList& list_;
  WNDPROC listProcedure_ = nullptr;
  int shownCount_ = 0;  // entries of the window's list
  std::wstring typed_;  // the start of the entry that the user is typing
  DWORD typedAt_ = 0;
  std::optional<int> chosen_;  // set until the list has closed, because handling the choice may take long
  bool entering_ = false;      // Enter is being handled
};

}  // namespace vantor::win32
