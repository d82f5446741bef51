// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace tally {

// The phases of a feeder as they are marked in the field.
enum class Phase { none, red, white, blue };

// The phase that a text names as a whole word in any case of letters ("maple-red.dat", "White phase"); none
// when it names none or more than one.
Phase phaseIn(std::string_view text);

} // namespace tally
