// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Help.h"

#include "app/HelpWindow.h"
#include "app/TLY.h"
#include "app/forms/About.h"
#include "app/forms/Words.h"

#include <QCoreApplication>

namespace tally {

TLY_Help::TLY_Help(TLY& window)
    : window_(window), helpFile_(QCoreApplication::applicationDirPath() + QStringLiteral("/tallyhelp.hlp")) {}

void TLY_Help::mnuItemHelp_Click() {
    QString why;
    if (!WinHelpA(window_, helpFile_, &why))
        window_.services().prompt.tell(why.toStdString());
}

void TLY_Help::mnuItemAbout_Click() {
    About about(words(window_.services().settings.get("Security", "userid")), &window_);
    about.exec();
}

} // namespace tally
