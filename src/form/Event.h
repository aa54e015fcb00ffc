#pragma once

#include <functional>
#include <utility>

namespace vantor::form {

/// Something that a control tells the program. It has one handler, as a form has one routine for each event
/// of a control; an event without a handler does nothing.
template <class... Args>
class Event {
 public:
  template <class Handler>
  Event& operator=(Handler&& handler) {
    handler_ = std::forward<Handler>(handler);
    return *this;
  }

  void operator()(Args... args) const {
    // A copy, because a handler may replace itself or destroy the control that owns this event.
    if (auto handler = handler_) handler(args...);
  }

 private:
  std::function<void(Args...)> handler_;
};

}  // namespace vantor::form
