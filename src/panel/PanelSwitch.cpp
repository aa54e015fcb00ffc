#include "panel/PanelSwitch.h"

#include "panel/PanelPlace.h"

namespace vantor::panel {

bool PanelSwitch::Available(std::size_t index) const {
  const Panel* const panel = panels_.at(index);
  return panel != nullptr && panel->Available();
}

MenuFace PanelSwitch::FaceOf(std::size_t index) const {
  const MenuFace& closed = MenuButtons.at(index).Closed;
  return IsOpen(index) ? MenuFace{OpenCaption, closed.Picture, form::ButtonState::Pressed} : closed;
}

Panel* PanelSwitch::OpenOne() const {
  const int open = OpenPanelIndex();
  return open == command::NoIndex ? nullptr : panels_.at(static_cast<std::size_t>(open));
}

void PanelSwitch::Click(std::size_t index) {
  if (!Available(index)) return;
  Panel& panel = *panels_.at(index);
  const bool opens = !IsOpen(index);
  if (Panel* const other = OpenOne(); other != nullptr && opens) other->Close();
  state_.OpenPanelIndex = opens ? static_cast<std::int16_t>(index) : command::NoIndex;
  if (opens) {
    bar_->PauseOnTop();
    if (const message::MessageKey refusal = panel.Refusal(); !refusal.empty()) {
      state_.OpenPanelIndex = command::NoIndex;
      bar_->ShowMenuFaces();  // before the message, which may stay open for long
      messages_.ShowListMessage(refusal);
    }
  } else {
    bar_->ResumeOnTop();
  }
  bar_->ShowMenuFaces();
  if (IsOpen(index)) {
    panel.Open();
  } else {
    panel.Close();
    bar_->FocusLine();
  }
}

void PanelSwitch::OpenPanel(std::size_t index) {
  if (!IsOpen(index)) Click(index);
}

void PanelSwitch::Close() {
  if (const int open = OpenPanelIndex(); open != command::NoIndex) Click(static_cast<std::size_t>(open));
}

void PanelSwitch::ClosePanel() {
  Close();
  bar_->ClearLine();
}

void PanelSwitch::ItemAdded() {
  if (Panel* const open = OpenOne()) open->ItemAdded();
  bar_->ClearLine();
}

void PanelSwitch::BarMoved() const {
  if (Panel* const open = OpenOne()) open->Follow();
}

void PanelSwitch::PlaceByBar(form::Form& window) const {
  const form::Rect bar = bar_->Place();
  window.MoveTo(bar.Left, bar.Bottom());  // so that it takes on the scale of the bar's screen
  const form::Rect place = PlacePanel(bar, {window.Bounds().Width, window.Bounds().Height}, ui_.ScreenAt(bar).WorkArea);
  window.MoveTo(place.Left, place.Top);
}

}  // namespace vantor::panel
