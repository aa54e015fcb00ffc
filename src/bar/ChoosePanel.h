#pragma once

#include "bar/Panel.h"
#include "list/frmChoose.h"

namespace vantor::bar {

/// A page of the list dialog as a panel of the bar.
class ChoosePanel : public Panel {
 public:
  ChoosePanel(list::frmChoose& form, list::ChoosePage& page) : form_(form), page_(page) {}

  void Open() override { form_.ShowPage(page_); }
  void Close() override { form_.Hide(); }

 protected:
  [[nodiscard]] list::frmChoose& Form() const { return form_; }

 private:
  list::frmChoose& form_;
  list::ChoosePage& page_;
};

/// The launch list; there must be something in it.
class ListPanel : public ChoosePanel {
 public:
  explicit ListPanel(list::frmChoose& form) : ChoosePanel(form, form.Page) {}

  [[nodiscard]] message::MessageKey Refusal() override { return Form().Page.Empty() ? L"MessageEmptyList" : L""; }
};

}  // namespace vantor::bar
