// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"
#include "survey/SurveyData.h"

class QWidget;

namespace tally {

class DefaultFolder;
class Dispatcher;
class Printing;

// The Load Survey menu.
class TLY_Survey {
public:
    TLY_Survey(const Services& services, Dispatcher& dispatcher, DefaultFolder& folder, Printing& printing,
               QWidget* window)
        : services_(services),
          dispatcher_(dispatcher),
          folder_(folder),
          printing_(printing),
          window_(window) {}

    void mnuitemsurvfil_Click();

private:
    const Services& services_;
    Dispatcher& dispatcher_;
    DefaultFolder& folder_;
    Printing& printing_;
    QWidget* window_; // for the dialog
    SurveyData survey_;
};

} // namespace tally
