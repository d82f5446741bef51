// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/DownloadSession.h"
#include "link/Journal.h"

#include <functional>

namespace tally {

// What becomes of an accepted download before the place where it waits is needed or goes away.
enum class Fate {
    kept,    // the journal holds it: nothing is lost, and nothing was asked
    saved,   // the user saved it
    dropped, // the user gave it up
    stays,   // neither: it must stay where it is
};

// Asks about a download that the journal could not keep, and says why it could not; waits for the disk.
// `save` lets the user choose a file and writes it; false when the user did not.
Fate fateOf(const PendingDownload& pending, Journal& journal, Prompt& prompt,
            const std::function<bool()>& save);

} // namespace tally
