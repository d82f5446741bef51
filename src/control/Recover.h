// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/RecoverText.h"
#include "core/Files.h"
#include "link/DownloadSession.h"
#include "link/HeaderScan.h"
#include "link/Session.h"

#include <optional>
#include <string>

namespace tally {

// Receives the memory of an instrument whose battery failed, and works out when its recording stopped.
// Nothing is sent to the instrument.
class RecoverSession {
public:
    explicit RecoverSession(Session& session) : session_(session) {}

    // What comes before the dialog: refuses automatic selection, warns, tries the port and puts the prompt
    // into the panel. False when the command ends here, which was told.
    bool mnuItemRecover_Click();

    // What the OK button runs: receives, works out and reports. Nothing when no recording was recovered,
    // which was told (a cancel needs no word). `temporary` is the path of the file that the text is read back
    // from; it stays. The port is closed when it returns or throws: Subscript for a text that is too long or
    // a mode outside the table, Type mismatch for a header time that is none, Overflow for a reading too
    // large, file faults.
    std::optional<PendingDownload> RecoverProc(Files& files, const std::string& temporary);

private:
    enum class Step { goOn, complete, cancelled, lost, notValid, notVoltmeter };

    Step receive();
    Step onCharacter(char c);
    Step judge(char c) const;
    void countProgress();
    void tellWhy(Step step);
    bool join();
    std::optional<PendingDownload> workOut(Files& files, const std::string& temporary);
    PendingDownload accept(const RecoveredText& recovered);
    void warnLowBattery();

    Session& session_;
    HeaderScan scan_;
    std::string text_; // as it arrives, the family initial in upper case
    int progress_ = 0;
    bool headerPassed_ = false;
};

} // namespace tally
