// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

#include <QtGlobal>

namespace tally {

class Menus;
class Screen;
class StatusPanels;
class Views;

namespace study {
class StudyForm;
}

// The load study of the open files.
class TLY_Study {
public:
    TLY_Study(const Services& services, Dispatcher& dispatcher, Views& views, Screen& screen, Menus& menus,
              StatusPanels& status)
        : services_(services),
          dispatcher_(dispatcher),
          views_(views),
          screen_(screen),
          menus_(menus),
          status_(status) {}

    Done mnuItemViewStudy_Click();
    // Studies the files again while the study is shown.
    void renew();

private:
    study::StudyForm& form();
    // Shows the day around a time (minutes since 1970-01-01 00:00) in the data plot.
    Done goTo(qint64 minutes);

    const Services& services_;
    Dispatcher& dispatcher_;
    Views& views_;
    Screen& screen_;
    Menus& menus_;
    StatusPanels& status_;
    study::StudyForm* form_ = nullptr; // the screen owns it
};

} // namespace tally
