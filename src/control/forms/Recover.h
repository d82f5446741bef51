// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Files.h"
#include "link/DownloadSession.h"
#include "link/forms/SessionDialog.h"

namespace tally {

// "recover": prompt and progress of a recovery after a failed battery, in one label.
class Recover : public SessionDialog {
    Q_OBJECT

public:
    Recover(const SessionServices& context, QWidget* parent);

    void prompt(const std::string& text) override;
    void status(const std::string& text) override;

private:
    QLabel* label1_;
};

// The whole recover command of the main window `parent` (a type is chosen already). `temporary` is the path
// of its temporary file, in a folder of this user alone. Gives the recovered text: the main window keeps it
// until it is saved, as after a download. Throws the faults of the session; the port is closed and the dialog
// gone then too.
SessionResult<PendingDownload> runRecover(QWidget* parent, const SessionServices& context, Files& files,
                                          const std::string& temporary);

} // namespace tally
