// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Prompt.h"
#include "link/DownloadSession.h"
#include "link/Journal.h"

#include <optional>
#include <string>
#include <vector>

namespace tally {

// Judges a kept reception as a download is judged when it ends. Gives what the user accepted, which the
// journal then keeps as accepted; nothing when it holds no recording or was not accepted. Throws file faults,
// and what validation throws; the reception then stays as it is.
std::optional<PendingDownload> validateReception(Journal& journal, const std::string& id, Prompt& prompt);

// The receptions that wait for the user, newest first: unsaved, and no session writes to them.
std::vector<JournalEntry> unsavedReceptions(const Journal& journal);

// One line about a reception for lists and notices (UTF-8): when, from what, how much, what became of it.
std::string receptionText(const JournalEntry& entry);

} // namespace tally
