#pragma once

#include <cstddef>

#include "message/MessageState.h"

namespace vantor::bar {

/// The CommandMenu buttons, from left to right; their panels by the same numbers.
namespace menu {
inline constexpr std::size_t Add = 0;
inline constexpr std::size_t Open = 1;
inline constexpr std::size_t List = 2;
inline constexpr std::size_t Companions = 3;  // the maker's other programs
inline constexpr std::size_t Options = 4;
inline constexpr std::size_t Help = 5;
inline constexpr std::size_t Code = 6;
inline constexpr std::size_t Count = 7;
}  // namespace menu

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
