#include "panel/PageText.h"

#include <algorithm>

#include "form/UserInterface.h"

namespace vantor::panel {

namespace {

using form::Twips;

constexpr Twips BetweenColumns = 180;

}  // namespace

form::Label& PageText::Add(form::Control& container, std::wstring_view text, bool bold) {
  form::Label& label = labels_.emplace_back(container, L"LabelText");
  label.SetCaption(text);
  label.SetBold(bold);
  return label;
}

Twips WidthOf(const form::Label& label) {
  return label.OwnerForm().Ui().MeasureText(label.Caption(), label.Bold(), form::UserInterface::AnyWidth).Width;
}

Twips Place(form::Label& label, Twips left, Twips top, Twips width) {
  const Twips height = label.OwnerForm().Ui().MeasureText(label.Caption(), label.Bold(), width).Height;
  label.SetBounds({left, top, width, height});
  return label.Bottom();
}

Twips TextTable::Width() const { return std::max(WidthOf(Head), WidthOf(Left) + BetweenColumns + WidthOf(Right)); }

Twips TextTable::PlaceAt(Twips left, Twips top, Twips width) const {
  const Twips under = Place(Head, left, top, width) + UnderHead;
  const Twips leftWidth = WidthOf(Left);
  const Twips rightLeft = left + leftWidth + BetweenColumns;
  return std::max(Place(Left, left, under, leftWidth), Place(Right, rightLeft, under, left + width - rightLeft));
}

}  // namespace vantor::panel
