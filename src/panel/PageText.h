#pragma once

#include <algorithm>
#include <deque>
#include <string>
#include <string_view>

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

/// The texts of entries as lines, without the empty ones.
template <class Entries, class TextOf>
std::wstring Lines(const Entries& entries, TextOf textOf) {
  std::wstring lines;
  for (const auto& entry : entries) {
    const std::wstring_view text = textOf(entry);
    if (!text.empty() && !lines.empty()) lines += L"\r\n";
    lines += text;
  }
  return lines;
}

inline constexpr form::Twips UnderHead = 45;

/// A heading and the text below it.
struct TextSection {
  form::Label& Head;
  form::Label& Text;

  [[nodiscard]] form::Twips Width() const { return std::max(Head.LeastSize().Width, Text.LeastSize().Width); }
  /// Returns the lower edge.
  form::Twips PlaceAt(form::Twips left, form::Twips top, form::Twips width) const {
    return Text.PlaceAt(left, Head.PlaceAt(left, top, width) + UnderHead, width);
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
