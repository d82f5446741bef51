// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

namespace tally {

class StartPage;

// Fills the start page: the recent files with serial number and date, and what waits to be saved.
class TLY_Start {
public:
    TLY_Start(const Services& services, StartPage& page) : services_(services), page_(page) {}

    void refresh();

private:
    const Services& services_;
    StartPage& page_;
};

} // namespace tally
