#include "panel/PageText.h"

namespace vantor::panel {

using form::Twips;

constexpr Twips BetweenColumns = 180;

form::Label& PageText::Add(form::Control& container, std::wstring_view text, bool bold) {
  form::Label& label = labels_.emplace_back(container, L"LabelText");
  label.SetCaption(text);
  label.SetBold(bold);
  return label;
}

Twips TextTable::Width() const {
  return std::max(Head.LeastSize().Width, Left.LeastSize().Width + BetweenColumns + Right.LeastSize().Width);
}

Twips TextTable::PlaceAt(Twips left, Twips top, Twips width) const {
  const Twips under = Head.PlaceAt(left, top, width) + UnderHead;
  const Twips leftWidth = Left.LeastSize().Width;
  const Twips rightLeft = left + leftWidth + BetweenColumns;
  return std::max(Left.PlaceAt(left, under, leftWidth), Right.PlaceAt(rightLeft, under, left + width - rightLeft));
}

}  // namespace vantor::panel
