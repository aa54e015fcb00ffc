#pragma once

#include <cstddef>
#include <cstdint>

#include "form/Form.h"
#include "form/Keys.h"

namespace vantor::panel {

class Panel;

/// What a panel asks of the bar that it belongs to.
class PanelHost {
 public:
  /// Registers the panel that the menu button with this index opens. The panel lives as long as the bar.
  virtual void Add(std::size_t index, Panel& panel) = 0;
  /// The menu button whose panel is open, -1 for none.
  [[nodiscard]] virtual std::int16_t OpenPanelIndex() const = 0;
  /// Opens a panel and closes the one that is open. Does nothing if the panel is already open.
  virtual void OpenPanel(std::size_t index) = 0;
  /// Closes the open panel, if there is one, and goes back to an empty command line.
  virtual void ClosePanel() = 0;
  /// An item was added to the launch list: brings the open panel up to date, and goes back to an empty command line,
  /// unless the bar is hidden or minimised.
  virtual void ItemAdded() = 0;
  /// An item of the launch list was removed or renamed.
  virtual void ListChanged() = 0;
  /// Does what a function key does on the bar. Other keys do nothing.
  virtual void HotKey(form::Key key) = 0;
  /// Moves a panel's window to the best place next to the bar.
  virtual void PlaceByBar(form::Form& window) const = 0;

 protected:
  ~PanelHost() = default;  // nobody owns one by this type
};

}  // namespace vantor::panel
