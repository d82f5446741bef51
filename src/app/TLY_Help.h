// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tally {

class TLY;

class TLY_Help {
public:
    explicit TLY_Help(TLY& window);

    void mnuItemHelp_Click();
    // The page of a menu, by the name of the menu.
    void showMenu(const QString& menu);
    void mnuItemAbout_Click();

    // "tallyhelp.hlp" in the application's directory, unless it was set to another.
    void setHelpFile(const QString& path) { helpFile_ = path; }

private:
    void show(const QString& page);

    TLY& window_;
    QString helpFile_;
};

} // namespace tally
