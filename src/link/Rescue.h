// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/Journal.h"
#include "link/ReceivedRecording.h"

#include <string>
#include <vector>

namespace tally {

// Judges a kept download as it is judged when it ends, from what was received. Gives what the user accepted,
// which the journal then keeps as accepted; the end without it was told. Throws file faults, and what
// validation throws; the reception then stays as it is.
SessionResult<PendingDownload> judgeReception(Journal& journal, const std::string& id, Prompt& prompt);

// The receptions that wait for the user, newest first: unsaved, and no session writes to them; a refused one
// until a later one of its instrument is saved.
std::vector<JournalEntry> unsavedReceptions(const Journal& journal);

// One line about a reception for lists and notices (UTF-8): when, from what, how much, what became of it.
std::string receptionText(const JournalEntry& entry);

} // namespace tally
