// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "survey/SurveyData.h"

namespace tally {

class TLY;
struct SurveyPaper;

// The Load Survey menu.
class TLY_Survey {
public:
    explicit TLY_Survey(TLY& window) : window_(window) {}

    void mnuitemsurvfil_Click();

private:
    TLY& window_;
    SurveyData survey_;
};

} // namespace tally
