// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/PowerOptions.h"

#include "view/LineVoltage.h"
#include "view/Power.h"

namespace tally::cli {

std::string PowerOptions::vline(Context& context) const {
    return volts.empty() ? vlineOf(context.settings()) : volts;
}

std::shared_ptr<PowerOptions> addPowerOptions(CLI::App& command) {
    auto options = std::make_shared<PowerOptions>();
    command.add_option("--volts", options->volts, "line voltage in volts (else the stored one)");
    command.add_option("--pf", options->powerFactor, "power factor (else 1)");
    return options;
}

Plot drawPower(Context& context, OpenFiles& open, const PowerOptions& options) {
    const std::string vline = options.vline(context);
    const double volts = voltsOf(vline);
    if (const std::string hint = voltageHint(vline); !hint.empty())
        context.warn(hint);
    setPowerFactor(open.recordings, options.powerFactor);
    Plot plot;
    const PowerRefusal refusal = DisplPlotPwr(open.recordings, open.state, volts, context.clock(), plot);
    if (refusal != PowerRefusal::none)
        throw Refused(std::string(refusalText(refusal)));
    return plot;
}

} // namespace tally::cli
