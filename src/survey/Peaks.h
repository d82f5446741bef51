// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "survey/SurveyData.h"

namespace tally {

// The peaks of a feeder whose three phases are loaded: for each phase the earliest of its highest readings
// above 0, index 0 when there is none. The shortest of the three files is scanned.
FeederPeaks feederPeaksOf(const FeederFiles& files);

// The feeders that the station peak covers: those loaded among the first to the current one.
bool coversFeeder(const SurveyData& survey, int feeder);
bool coversAnyFeeder(const SurveyData& survey);

// Works out station totals and station peak: the earliest of the highest totals. The shortest of the files is
// scanned. At least one feeder is covered. Throws Overflow when a feeder's total at any moment, or the
// station's highest, is no 16-bit number; then nothing has changed.
void findStationPeak(SurveyData& survey);

} // namespace tally
