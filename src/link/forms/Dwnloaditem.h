// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/DownloadSession.h"
#include "link/forms/SessionDialog.h"

namespace tally {

// "Dwnloaditem": prompt, state, progress and log of a download.
class Dwnloaditem : public SessionDialog {
    Q_OBJECT

public:
    Dwnloaditem(const SessionServices& context, QWidget* parent);

    void prompt(const std::string& text) override;
    void status(const std::string& text) override;
    void progressText(const std::string& text) override;
    void remaining(const std::string& text) override;

private:
    QLabel* prompt_;
    QLabel* label1_;
    QLabel* label2_;
    QLabel* remaining_;
};

// The whole download command of the main window `parent` (a type is chosen already). Gives the accepted text:
// the main window keeps it until it is saved. The end of a command without one was told. Throws the faults of
// the session; the port is closed and the dialog gone then too.
SessionResult<PendingDownload> runDownload(QWidget* parent, const SessionServices& context,
                                           const Files& files, const std::string& workingDirectory);

} // namespace tally
