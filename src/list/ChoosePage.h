#pragma once

#include <string_view>

#include "form/Geometry.h"
#include "form/Static.h"

namespace vantor::list {

/// One page of frmChoose: a frame on that form, with what is in it.
class ChoosePage {
 public:
  virtual ~ChoosePage() = default;

  [[nodiscard]] virtual form::Frame& Frame() = 0;
  /// The form's caption while the page shows.
  [[nodiscard]] virtual std::wstring_view Title() const = 0;
  /// What stands on the button that closes the page; "" when the page has one of its own.
  [[nodiscard]] virtual std::wstring_view CloseCaption() const = 0;
  /// Places the controls in the frame, and returns the frame's size.
  virtual form::Size LayOut() = 0;
  /// Shows how things are now; each time before the page is shown.
  virtual void Prepare() {}
  /// What takes the focus when the page has opened; null for the button that closes it.
  [[nodiscard]] virtual form::Control* First() { return nullptr; }

 protected:
  ChoosePage() = default;
  ChoosePage(const ChoosePage&) = default;
  ChoosePage& operator=(const ChoosePage&) = default;
};

}  // namespace vantor::list
