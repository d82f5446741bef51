// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "link/DownloadReception.h"
#include "link/Runspec.h"
#include "link/Session.h"

#include <optional>
#include <string>

namespace tally {

// An accepted download. It waits here, and nowhere else, until it is saved.
struct PendingDownload {
    std::string text; // bytes, as a data file holds them
    std::string id;   // its reception in the journal; empty when that is kept nowhere
};

// The road from an instrument's memory to an accepted text. Nothing is sent to the instrument.
class DownloadSession {
public:
    // `waitFor` bounds the wait for the first character (milliseconds); without it there is no bound.
    explicit DownloadSession(Session& session, std::int64_t waitFor = Waiter::never);

    // What comes before the dialog: tries the port, reads the run specification, warns about voltage
    // recorders and puts the prompt into the panel. False when the command ends here. Throws file faults.
    bool mnuItemDownload_Click(const Files& files, const std::string& workingDirectory);

    // What the OK button runs: receives, judges and reports. Nothing when no download was accepted. The port
    // is closed when it returns or throws.
    std::optional<PendingDownload> DownLoadProc();

private:
    void showProcessing(const std::string& text);
    std::optional<PendingDownload> judge(ReceivedDownload& received);

    Session& session_;
    std::int64_t waitFor_;
    RunFlags flags_;
};

} // namespace tally
