// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

namespace tally {

class Printing;
class Views;
class VoltageQuestion;

// File > Print.
class TLY_Paper {
public:
    TLY_Paper(const Services& services, Views& views, VoltageQuestion& voltage, Printing& printing)
        : services_(services), views_(views), voltage_(voltage), printing_(printing) {}

    Done mnuItemPrintSum_Click();
    Done mnuItemPrintTable_Click();
    Done mnuItemPrintpwrSum_Click();
    Done mnuItemPrintPwrTable_Click();

private:
    const Services& services_;
    Views& views_;
    VoltageQuestion& voltage_;
    Printing& printing_;
};

} // namespace tally
