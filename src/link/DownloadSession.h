// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "link/InstrumentWait.h"
#include "link/ReceivedRecording.h"
#include "link/Runspec.h"
#include "link/Session.h"

#include <string>

namespace tally {

// How a download waits on an opened port; `waitFor` bounds the wait for the first character (milliseconds).
WaitPolicy downloadPolicy(Panel& panel, std::int64_t waitFor = Waiter::never);

// The road from an instrument's memory to an accepted text. Nothing is sent to the instrument.
class DownloadSession {
public:
    // `waitFor` bounds the wait for the first character (milliseconds); without it there is no bound.
    explicit DownloadSession(Session& session, std::int64_t waitFor = Waiter::never);

    // What comes before the dialog: tries the port, reads the run specification, warns about voltage
    // recorders and puts the prompt into the panel. Throws file faults.
    SessionResult<void> prepare(const Files& files, const std::string& workingDirectory);

    // What the OK button runs: receives, judges and reports. The port is closed when it returns or throws.
    SessionResult<PendingDownload> DownLoadProc();

private:
    SessionResult<Received> receive();
    void showProcessing(const std::string& text);
    SessionResult<PendingDownload> judge(Received& received);

    Session& session_;
    std::int64_t waitFor_;
    RunFlags flags_;
};

} // namespace tally
