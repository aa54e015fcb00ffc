#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "flows/World.h"

namespace vantor::flows {

/// Plays flows, texts in UTF-8, each in a world of its own. README.md says what a flow may hold. What was not as a flow
/// says is told with its file's name and the line's number before it; at the end how many were played and failed.
/// Returns whether all passed that could be played here, and one could.
bool PlayAll(const std::vector<std::filesystem::path>& files, const std::function<void(const std::string& line)>& tell);

/// Plays a flow, one of several that differ little, say. Returns what was not as it says, "" if nothing.
std::string Play(const Text& flow);

/// Plays steps, each on a line of its own, as far as they can be done.
void Try(World& world, const Text& steps);

}  // namespace vantor::flows
