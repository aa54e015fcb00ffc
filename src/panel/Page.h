#pragma once

#include <string_view>

#include "form/Static.h"
#include "panel/Panel.h"

namespace vantor::panel {

class frmChoose;

/// What is said of a page around it.
struct PageTexts {
  std::wstring_view FrameName;
  std::wstring_view Caption;       // of the frame; "" for a frame without an edge
  std::wstring_view Title;         // the form's caption while the page shows
  std::wstring_view CloseCaption;  // on the button that closes the page; "" when the page has one of its own
};

/// A panel that is one page of frmChoose: a frame on that form, with what is in it.
class Page : public Panel {
 public:
  Page(frmChoose& form, std::size_t index, const PageTexts& texts);

  form::Frame Frame;

  [[nodiscard]] std::wstring_view Title() const { return title_; }
  [[nodiscard]] std::wstring_view CloseCaption() const { return closeCaption_; }
  /// Runs once, when the form is loaded.
  virtual void Load() {}
  /// Shows how things are now; each time before the page is shown.
  virtual void Prepare() {}
  /// Places the controls in the frame, and returns the frame's size.
  virtual form::Size LayOut() = 0;
  /// What takes the focus when the page has opened; null for the button that closes it.
  [[nodiscard]] virtual form::Control* First() { return nullptr; }

  void Open() override;
  /// The page has another size now: places everything again and fits the form to it, if it is the page that is shown.
  void Arrange();

 private:
  frmChoose& form_;
  std::wstring title_;
  std::wstring closeCaption_;
};

}  // namespace vantor::panel
