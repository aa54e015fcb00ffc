#pragma once

#include <doctest/doctest.h>

#include <functional>
#include <string>

#include "flows/NativeWorld.h"
#include "flows/Player.h"
#include "flows/Words.h"

namespace vantor::test {

using World = flows::NativeWorld;

/// Plays a flow in memory; the test case fails if the program differs from what it says. Where the flow says `look`,
/// the case does or checks what flows have no words for.
inline void Play(const std::wstring& flow, const std::function<void(World&)>& look = {}) {
  CAPTURE(flows::Narrow(flow));
  CHECK(flows::Play(flow, [&](flows::World& world) { look(static_cast<World&>(world)); }) == "");
}

}  // namespace vantor::test
