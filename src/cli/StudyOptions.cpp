// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/StudyOptions.h"

namespace tally::cli {

study::StudyOptions StudyOptions::read() const {
    const auto options = study::optionsOf({.window = window.entry(),
                                           .high = high.entry(),
                                           .low = low.entry(),
                                           .rating = rating.entry(),
                                           .add = add.entry(),
                                           .factor = factor.entry(),
                                           .volts = volts.entry(),
                                           .pf = pf.entry(),
                                           .holidays = holidays});
    if (!options)
        throw WrongUsage("--" + options.error().subject + ": " + options.error().text);
    return *options;
}

std::shared_ptr<StudyOptions> addStudyOptions(CLI::App& command) {
    auto options = std::make_shared<StudyOptions>();
    addNumber(command, options->window, "--window", "demand window in minutes: 5, 10, 15, 20, 30 or 60 (15)");
    addNumber(command, options->high, "--high", "limit above which runs are listed, in the files' unit");
    addNumber(command, options->low, "--low", "limit below which runs are listed, in the files' unit");
    addNumber(command, options->rating, "--rating", "rated amps of the circuit, for the capacity check");
    addNumber(command, options->add, "--add", "amps of the new load (0)");
    addNumber(command, options->factor, "--factor", "factor on the highest demand (1.25)");
    command
        .add_option("--holiday", options->holidays, "a date YYYY-MM-DD that counts as a Sunday; repeatable")
        ->allow_extra_args(false);
    addNumber(command, options->volts, "--volts", "line voltage in volts: adds the power of the files");
    addNumber(command, options->pf, "--pf", "power factor (1)");
    return options;
}

} // namespace tally::cli
