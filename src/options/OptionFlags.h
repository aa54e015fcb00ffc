#pragma once

#include <cstdint>

namespace vantor::options {

/// The options in effect, each 1 or 0.
struct OptionFlags {
  std::int16_t StartWithWindows = 0;
  std::int16_t AlwaysOnTop = 0;
  std::int16_t ShowAddUrlAtStart = 0;
};

/// The options encoded in an option mask.
[[nodiscard]] constexpr OptionFlags DecodeOptionMask(std::int16_t mask) {
  const auto bit = [mask](int value) { return static_cast<std::int16_t>((mask & value) != 0 ? 1 : 0); };
  return {bit(1), bit(2), bit(4)};
}

}  // namespace vantor::options
