// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/forms/SessionDialog.h"

namespace tally {

// "Abort": the progress of an initialization, with CANCEL at every moment. It comes up with its first text.
class Abort : public SessionDialog {
    Q_OBJECT

public:
    Abort(const SessionServices& context, QWidget* parent);

    void prompt(const std::string& text) override;
    void status(const std::string& text) override;

private:
    QLabel* label1_;
};

// The whole initialization command of the main window `parent` (a type is chosen already): warning, options,
// and one instrument after the other. Throws the faults of the
// session; the port is closed and the dialog gone then too.
void runInitialize(QWidget* parent, const SessionServices& services);

} // namespace tally
