// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Study.h"
#include "study/forms/Block.h"

namespace tally::study {

// The plots of a study. The study must outlive the blocks.

// Load duration curves of all files, or of the power.
std::unique_ptr<Block> durationPlot(const Study& study, bool power);
// Mean and 10th to 90th percentile through a weekday, a Saturday and a Sunday.
std::unique_ptr<Block> typicalDaysPlot(const Study& study, std::size_t channel);
// Day by time of day, a colour a load.
std::unique_ptr<Block> heatMap(const Study& study, std::size_t channel);
// Loads over time with the limits, the runs beyond them marked.
std::unique_ptr<Block> limitPlot(const Study& study, std::size_t channel);
// Unbalance of the phases over time. The study has phases.
std::unique_ptr<Block> unbalancePlot(const Study& study);

} // namespace tally::study
