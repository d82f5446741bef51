// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/Journal.h"

#include <string>
#include <vector>

namespace tally {

// One line about the last receptions, with serial number and whether each is saved, for someone who is about
// to erase an instrument (UTF-8, without a line end).
std::string knownDownloads(const std::vector<JournalEntry>& newestFirst);

// The unsaved receptions of the instrument with a serial number (bytes), one a line; empty when there are
// none or the number is blank.
std::string unsavedDownloadsOf(const std::string& serial, const Journal& journal);

} // namespace tally
