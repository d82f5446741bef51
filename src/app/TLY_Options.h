// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Services.h"

#include <string>

namespace tally {

class DefaultFolder;
class Dispatcher;
class FolderChoice;

// The Options menu, but for what belongs to the chart, the power views and the instrument.
class TLY_Options {
public:
    TLY_Options(const Services& services, Dispatcher& dispatcher, DefaultFolder& folder,
                FolderChoice& choice);

    void mnuItemUserID_Click();
    void mnuItemDefaultDir_Click();
    void SpecialTest_Click();
    void Command1_Click(const std::string& folder);

private:
    const Services& services_;
    DefaultFolder& folder_;
    FolderChoice& choice_;
};

} // namespace tally
