#pragma once

#include <utility>

namespace vantor::form {

/// Sets a value for the length of a scope, even if an exception ends it.
template <class T>
class Scoped {
 public:
  Scoped(T& variable, T value) : variable_(variable), old_(std::exchange(variable, value)) {}
  ~Scoped() { variable_ = old_; }
  Scoped(const Scoped&) = delete;
  Scoped& operator=(const Scoped&) = delete;

 private:
  T& variable_;
  T old_;
};

}  // namespace vantor::form
