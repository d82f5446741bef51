// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Report.h"

namespace tally::study {

// What the figures rest on: files, times, voltage and power factor, and what is to be doubted.
ReportSection basisSection(const Study& study);
// The first runs beyond the limits, of every channel.
ReportSection limitsSection(const Study& study);
// The first things in the recordings that a reader should look at.
ReportSection flagsSection(const Study& study);

} // namespace tally::study
