// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

#include <QString>

class QMainWindow;
class QWidget;

namespace tally {

// Help and About.
class TLY_Help {
public:
    TLY_Help(const Services& services, QMainWindow& window);

    void mnuItemHelp_Click();
    // The page of a menu, by the name of the menu.
    void showMenu(const QString& menu);
    void mnuItemAbout_Click();

    // "tallyhelp.hlp" in the application's directory, unless it was set to another.
    void setHelpFile(const QString& path) { helpFile_ = path; }

private:
    // A dialog lets nobody work with other windows: its help belongs to it.
    void show(QWidget& over, const QString& page);

    const Services& services_;
    QMainWindow& window_;
    QString helpFile_;
};

} // namespace tally
