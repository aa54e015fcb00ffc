#pragma once

#include <array>

#include "command/CommandState.h"
#include "form/UserInterface.h"
#include "message/Messages.h"
#include "panel/Panel.h"
#include "panel/PanelHost.h"

namespace vantor::panel {

/// What the panels and their switch need from the bar.
class MenuBar {
 public:
  /// The bounds on the desktop, in twips.
  [[nodiscard]] virtual form::Rect Place() const = 0;
  /// Shows on each menu button whether its panel is open.
  virtual void ShowMenuFaces() = 0;
  /// A panel opens: the bar stops being topmost.
  virtual void PauseOnTop() = 0;
  /// The panel has closed: the bar keeps itself on top again, if the user wants that.
  virtual void ResumeOnTop() = 0;
  virtual void FocusLine() = 0;
  virtual void ClearLine() = 0;
  virtual void ListChanged() = 0;
  virtual void HotKey(form::Key key) = 0;

 protected:
  ~MenuBar() = default;  // nobody owns one by this type
};

/// The switch between the panels: at most one is open, and nothing else opens or closes one. After the start it alone
/// sets OpenPanelIndex.
class PanelSwitch final : public PanelHost {
 public:
  PanelSwitch(const form::UserInterface& ui, message::Messages& messages, command::CommandState& state)
      : ui_(ui), messages_(messages), state_(state) {}

  /// Sets the bar that the panels belong to. To be called before anything else.
  void SetBar(MenuBar& bar) { bar_ = &bar; }

  /// Whether a menu button has something to open.
  [[nodiscard]] bool Available(std::size_t index) const;
  [[nodiscard]] MenuFace FaceOf(std::size_t index) const;
  /// A click on a menu button: opens its panel, or closes it.
  void Click(std::size_t index);
  /// Closes the open panel as its button does; the command line stays as it is.
  void Close();
  /// The bar has moved.
  void BarMoved() const;

  void Add(std::size_t index, Panel& panel) override { panels_.at(index) = &panel; }
  [[nodiscard]] std::int16_t OpenPanelIndex() const override { return state_.OpenPanelIndex; }
  void OpenPanel(std::size_t index) override;
  void ClosePanel() override;
  void ItemAdded() override;
  void ListChanged() override { bar_->ListChanged(); }
  void HotKey(form::Key key) override { bar_->HotKey(key); }
  void PlaceByBar(form::Form& window) const override;

 private:
  [[nodiscard]] bool IsOpen(std::size_t index) const { return OpenPanelIndex() == static_cast<int>(index); }
  /// Null for none.
  [[nodiscard]] Panel* OpenOne() const;

  const form::UserInterface& ui_;
  message::Messages& messages_;
  command::CommandState& state_;
  MenuBar* bar_ = nullptr;
  std::array<Panel*, menu::Count> panels_{};
};

}  // namespace vantor::panel
