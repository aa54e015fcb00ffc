#include "command/frmMatches.h"

#include <algorithm>

#include "form/UserInterface.h"
#include "text/DirectionMarks.h"

namespace vantor::command {

using form::Twips;

constexpr Twips ListWidth = 6000;
constexpr Twips Edge = 15;
constexpr Twips Corner = 60;  // above and below the rows, to keep them clear of the form's rounded corners
/// Above and below a row's text.
constexpr Twips RowPadding = 45;
/// A whole number of pixels on most screens.
constexpr Twips Grid = 60;

frmMatches::frmMatches(form::UserInterface& ui, const service::Language& language)
    : Form(ui, L"frmMatches"), matches_(language) {
  SetBorderStyle(form::BorderStyle::Line);
  SetBackColor(form::Color::WindowBackground);
  ListMatches.SetAccessibleName(L"What fits");
}

void frmMatches::Form_Load() {
  const Twips text = Ui().MeasureText(L"Xg", true, form::UserInterface::AnyWidth).Height;
  ListMatches.SetRowHeight((text + 2 * RowPadding + Grid - 1) / Grid * Grid);
}

void frmMatches::ShowFound(int current) {
  Load();
  const Twips height = std::min(matches_.Count(), MostRows) * ListMatches.RowHeight();
  const form::Size size{ListWidth, height + 2 * Corner};
  const form::Rect place = Place(size);
  SetPlace(place.Left, place.Top, size);
  ListMatches.SetBounds({Edge, Corner, ListWidth - 2 * Edge, height});
  ListMatches.ShowRows(current);
  Show();
}

form::Row frmMatches::RowAt(int index) const {
  return {text::WithSignsForMarks(matches_.NameOf(index)), matches_.PlaceOf(index), matches_.TypedLength(),
          text::WithSignsForMarks(matches_.DetailOf(index))};
}

}  // namespace vantor::command
