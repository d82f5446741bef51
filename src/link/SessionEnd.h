// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Refusal.h"

namespace tally {

// How a session with an instrument ended without a result.
enum class EndKind {
    cancelled,       // by the user, who needs no word
    badPort,         // the port could not be opened
    lineGone,        // the line closed itself
    noResponse,      // nothing came in the time that there was
    wrongResponse,   // what came is no header or no token
    wrongInstrument, // not a voltmeter, or one that cannot be recovered
    badData,         // no recording in what came
    declined,        // the user, or the call, said no
    notRecoverable,  // its end has no time
    unsavedDownload, // what the instrument holds waits unsaved in the journal
};

// The end of a session without a result, and the words that were told about it (none for a cancel).
struct SessionEnd {
    EndKind kind = EndKind::cancelled;
    Refusal why = {};
};

// What a session gives, or how it ended without it.
template <class Value>
using SessionResult = tl::expected<Value, SessionEnd>;

} // namespace tally
