// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"

#include <optional>
#include <string>
#include <string_view>

namespace tally {

// That the mode letter of a received text could not be read, naming what stands there (UTF-8).
std::string missingModeText(std::string_view gText);

// Asks for interval and mode when the header holds no mode letter from "a" to "l", and writes the letter into
// it. False, and told, when the user gives none.
bool completeMode(std::string& gText, Prompt& prompt);

// The mode letter of an answer: the letter itself or one of the choices offered.
std::optional<char> modeOfAnswer(std::string_view answer);

// The choice offered for a mode letter, "a" to "l": "15 min Average, continuous".
std::string modeChoice(char letter);

} // namespace tally
