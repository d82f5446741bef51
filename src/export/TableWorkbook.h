// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Workbook.h"
#include "export/ReadingTable.h"

namespace tally {

// The table as a workbook: the sheet "Readings" (date cells, number cells, a chart) and the sheet "Facts"
// with a column of facts a file. `made` is the date that the file carries.
Workbook tableWorkbook(const Recordings& recordings, const ReadingTable& table, ReadingTime made);

} // namespace tally
