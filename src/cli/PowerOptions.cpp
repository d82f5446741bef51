// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/PowerOptions.h"

#include "view/LineVoltage.h"
#include "view/Power.h"

namespace tally {

std::string PowerOptions::vline(Services& services) const {
    return volts.empty() ? vlineOf(services.settings()) : volts;
}

std::shared_ptr<PowerOptions> addPowerOptions(CLI::App& command) {
    auto options = std::make_shared<PowerOptions>();
    command.add_option("--volts", options->volts, "line voltage in volts (else the stored one)");
    command.add_option("--pf", options->powerFactor, "power factor (else 1)");
    return options;
}

Plot drawPower(Services& services, OpenFiles& open, const PowerOptions& options) {
    const std::string vline = options.vline(services);
    if (const std::string hint = voltageHint(vline); !hint.empty())
        warn(hint);
    setPowerFactor(open.recordings, options.powerFactor);
    Plot plot;
    const PowerRefusal refusal =
        DisplPlotPwr(open.recordings, open.state, voltsOf(vline), services.clock(), plot);
    if (refusal != PowerRefusal::none)
        throw Refusal(std::string(refusalText(refusal)));
    return plot;
}

} // namespace tally
