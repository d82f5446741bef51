// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace CLI {
class App;
}

namespace tally::cli {

class Context;

// Keys keep the order in which they are written.
using Json = nlohmann::ordered_json;

// Adds the switch --json.
std::shared_ptr<bool> addJson(CLI::App& command);

// Writes one JSON document and a line break to standard output.
void outJson(Context& context, const Json& document);

// Tenths as a number in units.
double inUnits(std::int32_t tenths);
// A number in single precision with no more digits than it holds.
double shortest(float value);

} // namespace tally::cli
