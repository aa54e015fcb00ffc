#pragma once

#include "message/MessageState.h"

namespace vantor::bar {

/// What a CommandMenu button opens. One at a time is open.
class Panel {
 public:
  virtual ~Panel() = default;

  /// The message to show instead of opening the panel now; "" when it can be opened.
  [[nodiscard]] virtual message::MessageKey Refusal() { return {}; }
  virtual void Open() = 0;
  virtual void Close() = 0;

 protected:
  Panel() = default;
  Panel(const Panel&) = default;
  Panel& operator=(const Panel&) = default;
};

}  // namespace vantor::bar
