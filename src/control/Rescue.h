// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/Journal.h"
#include "link/ReceivedRecording.h"

namespace tally {

// Judges a kept reception as the command that received it judges, and refuses what that refuses; an accepted
// text is taken as it is. Gives what the journal then keeps as accepted. The end without it was told. Throws
// file faults and what the command throws; the reception then stays as it is.
SessionResult<PendingDownload> rescue(Journal& journal, const JournalEntry& entry, Prompt& prompt);

} // namespace tally
