// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/OpenFiles.h"
#include "view/Power.h"

#include <memory>
#include <optional>
#include <string>

namespace tally::cli {

// --volts and --pf, as they were typed.
struct PowerOptions {
    std::optional<std::string> volts;
    std::optional<std::string> powerFactor;

    // The line voltage given, stored or the program's default, and the power factor. Throws WrongUsage for
    // what is no plain number.
    PowerBasis basis(Context& context) const;
    // Says on standard error which line voltage was taken when that is hardly meant.
    void warn(Context& context) const;
};

std::shared_ptr<PowerOptions> addPowerOptions(CLI::App& command);

// The power of the open files over their range. Throws Refused with the text of the box.
Power powerOfFiles(Context& context, const OpenFiles& open, const PowerOptions& options);

} // namespace tally::cli
