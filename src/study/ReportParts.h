// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Report.h"

namespace tally::study {

// "1 day", "2 days".
std::string count(std::size_t number, const char* one, const char* many);

// What the figures rest on: files, times, voltage and power factor, and what is to be doubted.
ReportSection basisSection(const Study& study);
// The first runs beyond the limits, of every channel.
ReportSection limitsSection(const Study& study);
// The first things in the recordings that a reader should look at.
ReportSection flagsSection(const Study& study);

} // namespace tally::study
