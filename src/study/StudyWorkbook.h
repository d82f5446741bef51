// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Workbook.h"
#include "study/Study.h"

namespace tally::study {

// A study as a spreadsheet: Summary, Readings, Demand, Duration, Days, Limits, Phases, Flags, always all of
// them, with charts of the duration curves and the typical days. `made` is the time that the file is dated
// with.
Workbook workbookOf(const Study& study, ReadingTime made);

} // namespace tally::study
