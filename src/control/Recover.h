// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/RecoverText.h"
#include "core/Files.h"
#include "link/HeaderScan.h"
#include "link/ReceivedRecording.h"
#include "link/Session.h"
#include "link/WaitHint.h"

#include <cstdint>
#include <string>

namespace tally {

// Receives the memory of an instrument whose battery failed, and works out when its recording stopped.
// Nothing is sent to the instrument.
class RecoverSession {
public:
    // `waitFor` bounds the wait for the first character (milliseconds); without it there is no bound.
    explicit RecoverSession(Session& session, std::int64_t waitFor = Waiter::never)
        : session_(session), hint_(session), waitFor_(waitFor) {}

    // What comes before the dialog: refuses automatic selection, warns, tries the port and puts the prompt
    // into the panel. The end was told.
    SessionResult<void> prepare();

    // What the OK button runs: receives, works out and reports. The end without a recording was told (a
    // cancel needs no word). `temporary` is the path of the file that the text is read back from; it stays.
    // The port is closed when it returns or throws: Subscript for a text that is too long or a mode outside
    // the table, Type mismatch for a header time that is none, Overflow for a reading too large, file faults.
    SessionResult<PendingDownload> RecoverProc(Files& files, const std::string& temporary);

private:
    SessionResult<void> receive();
    SessionResult<void> watchEnd();
    std::optional<RecoverRefusal> onCharacter(char c);
    void countProgress();
    bool join();
    SessionResult<PendingDownload> workOut(Files& files, const std::string& temporary);
    PendingDownload accept(const RecoveredText& recovered);
    void warnLowBattery();

    Session& session_;
    WaitHint hint_;
    std::int64_t waitFor_;
    HeaderScan scan_;
    std::size_t followed_ = 0; // characters after the end mark
    std::string text_;         // as it arrives, the family initial in upper case
    int progress_ = 0;
    bool headerPassed_ = false;
};

} // namespace tally
