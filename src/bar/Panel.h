#pragma once

namespace vantor::bar {

/// What a CommandMenu button opens. One at a time is open.
class Panel {
 public:
  virtual ~Panel() = default;

  virtual void Open() = 0;
  virtual void Close() = 0;

 protected:
  Panel() = default;
  Panel(const Panel&) = default;
  Panel& operator=(const Panel&) = default;
};

}  // namespace vantor::bar
