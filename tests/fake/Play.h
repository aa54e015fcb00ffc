#pragma once

#include <doctest/doctest.h>

#include <functional>
#include <sstream>
#include <string>

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

}  // namespace vantor::test
