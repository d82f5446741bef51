// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Report.h"
#include "study/forms/Block.h"

namespace tally::study {

// The headings, lines and table of a section, a block for each row of the table, so that a page may end
// between two of them.
void addSection(BlockList& blocks, const ReportSection& section, const QFont& font);

} // namespace tally::study
