// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/StatusCheck.h"
#include "link/forms/SessionDialog.h"

namespace tally {

// "status": the result, state and log of a status check.
class Status : public SessionDialog {
    Q_OBJECT

public:
    Status(const SessionServices& context, QWidget* parent);

    void prompt(const std::string& text) override;
    void status(const std::string& text) override;

private:
    QLabel* result_;
    QLabel* label1_;
};

// The whole status check command of the main window `parent` (a type is chosen already). Gives the fields of
// the last check, or how that ended without them.
SessionResult<StatusFields> runStatusCheck(QWidget* parent, const SessionServices& context);

} // namespace tally
