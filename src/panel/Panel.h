#pragma once

#include <cstddef>

#include "form/Form.h"
#include "message/MessageKey.h"
#include "panel/MenuButtons.h"
#include "panel/PanelHost.h"

namespace vantor::panel {

/// What a CommandMenu button opens. At most one panel is open at a time.
class Panel {
 public:
  /// The panel of a menu button, shown in a window that it may share with others.
  Panel(PanelHost& host, std::size_t index, form::Form& window) : host_(host), window_(window) {
    host.Add(index, *this);
  }
  virtual ~Panel() = default;
  Panel(const Panel&) = delete;
  Panel& operator=(const Panel&) = delete;

  /// Whether the bar has a button for the panel. Asked when the bar is laid out.
  [[nodiscard]] virtual bool Available() const { return true; }
  /// The message to show instead of opening the panel now; "" if it can be opened.
  [[nodiscard]] virtual message::MessageKey Refusal() { return {}; }
  virtual void Open() = 0;
  virtual void Close() { window_.Hide(); }
  /// An item was added to the launch list while the panel is open.
  virtual void ItemAdded() {}
  /// The bar has moved: moves the panel with it.
  void Follow() { host_.PlaceByBar(window_); }

 protected:
  [[nodiscard]] PanelHost& Host() const { return host_; }

 private:
  PanelHost& host_;
  form::Form& window_;
};

}  // namespace vantor::panel
