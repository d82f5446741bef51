// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace tally {

class TLY;

// The Options menu, but for what belongs to the chart, the power views and the instrument.
class TLY_Options {
public:
    explicit TLY_Options(TLY& window);

    void mnuItemUserID_Click();
    void mnuItemDefaultDir_Click();
    void SpecialTest_Click();
    void Command1_Click(const std::string& folder);

private:
    TLY& window_;
};

} // namespace tally
