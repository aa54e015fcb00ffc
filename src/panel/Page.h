#pragma once

#include <string_view>

#include "form/Static.h"
#include "panel/Panel.h"

namespace vantor::panel {

class frmChoose;

/// The texts around a page.
struct PageTexts {
  std::wstring_view FrameName;
  std::wstring_view Caption;       // of the frame; "" for a frame without an edge
  std::wstring_view Title;         // the form's caption while the page shows
  std::wstring_view CloseCaption;  // on the button that closes the page; "" when the page has one of its own
};

/// A panel that is one page of frmChoose: a frame on that form and its contents.
class Page : public Panel {
 public:
  Page(frmChoose& form, std::size_t index, const PageTexts& texts);

  form::Frame Frame;

  [[nodiscard]] std::wstring_view Title() const { return title_; }
  [[nodiscard]] std::wstring_view CloseCaption() const { return closeCaption_; }
  /// Runs once, when the form is loaded.
  virtual void Load() {}
  /// Brings the page up to date; called each time before it is shown.
  virtual void Prepare() {}
  /// Places the controls in the frame and returns its size.
  virtual form::Size LayOut() = 0;
  /// The control that gets the focus when the page opens; null for the button that closes it.
  [[nodiscard]] virtual form::Control* First() { return nullptr; }

  void Open() override;
  /// The size of the page has changed: lays it out again and fits the form to it if the page is being shown.
  void Arrange();

 private:
  frmChoose& form_;
  std::wstring title_;
  std::wstring closeCaption_;
};

}  // namespace vantor::panel
