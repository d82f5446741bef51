// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/TypedNumber.h"
#include "study/OptionEntries.h"

#include <memory>
#include <string>
#include <vector>

namespace tally::cli {

// What a study is asked for, as it was typed.
struct StudyOptions {
    TypedNumber window, high, low, rating, add, factor, volts, pf;
    std::vector<std::string> holidays;

    // Throws WrongUsage for what makes no sense whatever the files hold.
    study::StudyOptions read() const;
};

std::shared_ptr<StudyOptions> addStudyOptions(CLI::App& command);

} // namespace tally::cli
