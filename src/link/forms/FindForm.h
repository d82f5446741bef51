// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/FindInstrument.h"
#include "link/forms/SessionDialog.h"

#include <vector>

class QListWidget;

namespace tally {

// "FindInstrument": what is being listened to, and the instruments that were heard.
class FindForm : public SessionDialog {
    Q_OBJECT

public:
    FindForm(const SessionServices& services, QWidget* parent);

    void prompt(const std::string& text) override;
    void status(const std::string& text) override;

    // Shows what was heard and waits for a choice; nothing when the user wants none.
    std::optional<FoundInstrument> choose(const std::vector<FoundInstrument>& found);

private:
    QLabel* prompt_;
    QLabel* status_;
    QListWidget* list_;
};

// Listens on the free adapters, and on the other ports only when the user says so. Gives the instrument that
// the user wants to download from.
std::optional<FoundInstrument> runFind(QWidget* parent, const SessionServices& services,
                                       const PortCatalogue& catalogue);

} // namespace tally
