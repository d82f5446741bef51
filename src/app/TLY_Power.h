// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Power.h"

#include <optional>
#include <string>

namespace tally {

class TLY;

inline constexpr std::string_view powerTableName = "power table";

// The power views and what they are worked out from.
class TLY_Power {
public:
    explicit TLY_Power(TLY& window) : window_(window) {}

    void mnuItemViewPower_Click();
    void mnuItemViewPwrTable_Click();
    void mnuItemViewpwrsummry_Click();
    void mnuItemPF_Click();

    // The power plot over the displayed range with the voltage in force.
    void redraw();
    // Draws the power plot first when none was drawn since the files were opened; false when that ended
    // without one.
    bool ensureDrawn();

    // Asks for the line voltage and keeps the answer; volts, or nothing when it was left.
    std::optional<double> askVoltage();

private:
    bool drawn(PowerRefusal refusal, const Plot& plot);

    TLY& window_;
    std::string hint_; // about the voltage entered last
};

} // namespace tally
