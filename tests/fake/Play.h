#pragma once

#include <doctest/doctest.h>

#include <functional>
#include <initializer_list>
#include <sstream>
#include <string>
#include <string_view>

#include "flows/Player.h"

namespace vantor::test {

using flows::World;

/// Plays a flow in memory; the test case fails if the program differs from what it says. Where the flow says `look`,
/// the case does or checks what flows have no words for.
inline void Play(const std::wstring& flow, const std::function<void(World&)>& look = {}) {
  std::istringstream steps(flows::Narrow(flow));
  flows::Player player(steps.str());
  player.Look = look;
  CHECK_NOTHROW(player.Play(steps));
}

inline std::wstring Concat(std::initializer_list<std::wstring_view> parts) {
  std::wstring all;
  for (const std::wstring_view part : parts) all += part;
  return all;
}

}  // namespace vantor::test
