#pragma once

#include <algorithm>
#include <deque>
#include <string_view>

#include "form/Form.h"
#include "form/Static.h"

namespace vantor::panel {

/// The labels of a page that consists mostly of text. Places and sizes are in twips, relative to the labels' container.
class PageText {
 public:
  /// Adds a label with a text of one or more lines, which end by CR LF.
  form::Label& Add(form::Control& container, std::wstring_view text, bool bold = false);

 private:
  std::deque<form::Label> labels_;
};

/// The width at which no line of a label wraps.
[[nodiscard]] form::Twips WidthOf(const form::Label& label);
/// Places a label with the height that its text needs at this width. Returns its lower edge.
form::Twips Place(form::Label& label, form::Twips left, form::Twips top, form::Twips width);

inline constexpr form::Twips UnderHead = 45;

/// A heading and the text below it.
struct TextSection {
  form::Label& Head;
  form::Label& Text;

  [[nodiscard]] form::Twips Width() const { return std::max(WidthOf(Head), WidthOf(Text)); }
  /// Returns the lower edge.
  form::Twips PlaceAt(form::Twips left, form::Twips top, form::Twips width) const {
    return Place(Text, left, Place(Head, left, top, width) + UnderHead, width);
  }
};

/// Two labels whose lines form the rows of a table, under a heading.
struct TextTable {
  form::Label& Head;
  form::Label& Left;
  form::Label& Right;

  [[nodiscard]] form::Twips Width() const;
  /// Returns the lower edge.
  form::Twips PlaceAt(form::Twips left, form::Twips top, form::Twips width) const;
};

}  // namespace vantor::panel
