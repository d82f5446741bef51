// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Workbook.h"

#include <string>

namespace tally {

// The bytes of an .xlsx file. The same workbook gives the same bytes; any number of threads may make one
// each. Throws Disk full or Device I/O error when there is no room for the temporary file that it is made in.
std::string xlsxBytes(const Workbook& workbook);

} // namespace tally
