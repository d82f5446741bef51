// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Dispatcher.h"
#include "app/Services.h"

namespace tally {

class StatusPanels;
class Views;
class VoltageQuestion;

// The power views and the power factor.
class TLY_Power {
public:
    TLY_Power(const Services& services, Views& views, VoltageQuestion& voltage, StatusPanels& status)
        : services_(services), views_(views), voltage_(voltage), status_(status) {}

    Done mnuItemViewPower_Click();
    Done mnuItemViewPwrTable_Click();
    Done mnuItemViewpwrsummry_Click();
    void mnuItemPF_Click();

private:
    const Services& services_;
    Views& views_;
    VoltageQuestion& voltage_;
    StatusPanels& status_;
};

} // namespace tally
