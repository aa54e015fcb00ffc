#pragma once

#include <string>

#include "flows/World.h"

namespace vantor::flows {

enum class Result { Passed, Failed, Skipped };

/// Plays one flow, a text in UTF-8, in a world of its own. What was not as the flow says is told on standard error,
/// with `name` and the line's number before it. README.md says what a flow may hold.
Result Play(const std::string& name, const std::string& script);

/// Plays one step, as far as it can be done.
void Try(World& world, const Text& step);

}  // namespace vantor::flows
