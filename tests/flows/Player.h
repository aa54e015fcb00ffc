#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "flows/World.h"

namespace vantor::flows {

/// Plays flows, which are texts in UTF-8, each in a world of its own; README.md describes them. Differences from what a
/// flow says are printed after the names of the file and the number of the line, and at the end how many flows were
/// played and failed. Returns whether all that can be played here passed, and there was at least one.
bool PlayAll(const std::vector<std::filesystem::path>& files, const std::function<void(const std::string& line)>& tell);

/// Plays one flow. Returns how the program differed from what it says, "" if it did not. `look` is called where the
/// flow says so.
std::string Play(const Text& flow, const std::function<void(World&)>& look = {});

/// Plays steps, one on each line, as far as they are possible.
void Try(World& world, const Text& steps);

}  // namespace vantor::flows
