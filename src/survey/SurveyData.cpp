// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey/SurveyData.h"

#include <algorithm>

namespace tally {

bool SurveyData::isLoaded(int feeder) const {
    const FeederFiles& files = feeders.at(static_cast<std::size_t>(feeder));
    return std::all_of(files.begin(), files.end(), [](const PhaseFile& file) { return file.loaded(); });
}

} // namespace tally
