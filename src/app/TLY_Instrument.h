// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

#include <functional>
#include <string>

class QMainWindow;

namespace tally {

class Menus;
class StatusPanels;
class TLY_Downloads;

// The Instrument menu, and the choice of port and type.
class TLY_Instrument {
public:
    TLY_Instrument(const Services& services, TLY_Downloads& downloads, Menus& menus, StatusPanels& status,
                   QMainWindow* window);

    void mnuItemDownload_Click();
    void mnuItemInitialize_Click();
    void mnuItemRecover_Click();
    void mnuItemStatusCheck_Click();
    // Searches, and downloads from the instrument that the user chose.
    void mnuItemFind_Click();
    bool hasSimulated() const;
    // Sets port and type to the simulated instrument, and downloads from it.
    void trySimulated();
    void mnuItemPortSelect_Click();
    void mnuItemInstSelect_Click();

private:
    // Runs a session: a type is chosen first, the menus are off meanwhile.
    void session(const std::function<void()>& run);
    void sayProblem();
    void use(const std::string& device, int type);

    const Services& services_;
    TLY_Downloads& downloads_;
    Menus& menus_;
    StatusPanels& status_;
    QMainWindow* window_; // for the dialogs, and its menu bar
    SessionServices context_;
};

} // namespace tally
