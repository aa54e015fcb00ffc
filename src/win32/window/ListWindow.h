#pragma once

#include "form/ListControl.h"
#include "win32/window/ControlWindow.h"

namespace vantor::win32 {

/// A list box, a folder list or a file list.
class ListWindow final : public ControlWindow {
 public:
  ListWindow(FormWindow& owner, form::OpenList& list);

  void Refresh() override;
  void Describe(AccessibleState& state) const override;
  void OnCommand(WORD notification) override;
  void OnDraw(const DRAWITEMSTRUCT& item) override;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Show(form::Property property) override;

 private:
  void Fill();
  void ShowIndex();

  form::OpenList& list_;
  bool keying_ = false;  // a key is being handled
};

}  // namespace vantor::win32
