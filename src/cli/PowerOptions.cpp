// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/PowerOptions.h"

#include "core/Numbers.h"
#include "view/LineVoltage.h"

namespace tally::cli {

namespace {

double givenVolts(const std::string& typed) {
    const auto volts = plainVolts(typed);
    if (!volts)
        throw WrongUsage("--volts: '" + typed + "' is no number of volts");
    return *volts;
}

float givenFactor(const std::string& typed) {
    if (!plainNumber(typed))
        throw WrongUsage("--pf: '" + typed + "' is no number");
    return powerFactorOf(typed);
}

} // namespace

PowerBasis PowerOptions::basis(Context& context) const {
    PowerBasis basis;
    if (powerFactor)
        basis.factor = givenFactor(*powerFactor);
    basis.vline = volts ? plain(givenVolts(*volts)) : vlineOf(context.settings());
    return basis;
}

void PowerOptions::warn(Context& context) const {
    if (!volts && !hasVline(context.settings())) {
        context.warn("No line voltage is stored; taken as " + std::string(defaultVline) + " volts");
        return;
    }
    const std::string entry = volts ? *volts : vlineOf(context.settings());
    if (voltsOf(entry) == 0) // given for this call
        return;
    if (const std::string hint = voltageHint(entry); !hint.empty())
        context.warn(hint);
}

std::shared_ptr<PowerOptions> addPowerOptions(CLI::App& command) {
    auto options = std::make_shared<PowerOptions>();
    command.add_option("--volts", options->volts, "line voltage in volts (else the stored one)");
    command.add_option("--pf", options->powerFactor, "power factor (else 1)");
    return options;
}

Power powerOfFiles(Context& context, const OpenFiles& open, const PowerOptions& options) {
    Power power = valueOrRefused(powerOf(open.recordings, open.part(), options.basis(context)));
    options.warn(context);
    return power;
}

} // namespace tally::cli
