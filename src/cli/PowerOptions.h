// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/OpenFiles.h"
#include "view/Plot.h"

#include <memory>
#include <string>

namespace tally::cli {

// --volts and --pf, as they were typed.
struct PowerOptions {
    std::string volts;
    std::string powerFactor;

    // The line voltage as text: the given one, the stored one or the default.
    std::string vline(Context& context) const;
};

std::shared_ptr<PowerOptions> addPowerOptions(CLI::App& command);

// Draws the power plot of the open files over their range. Throws Refusal with the text of the box.
Plot drawPower(Context& context, OpenFiles& open, const PowerOptions& options);

} // namespace tally::cli
