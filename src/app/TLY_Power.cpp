// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Power.h"

#include "app/Views.h"
#include "app/VoltageQuestion.h"
#include "app/forms/StatusPanels.h"
#include "app/forms/Words.h"
#include "core/Numbers.h"
#include "view/LineVoltage.h"

namespace tally {

Done TLY_Power::mnuItemViewPower_Click() {
    if (const Done file = needFile(services_.recordings); !file)
        return file;
    if (!voltage_.ask())
        return {};
    services_.display.startPower(services_.recordings);
    const Done drawn = views_.redraw();
    if (drawn && !voltage_.hint().empty())
        status_.remark(words(voltage_.hint()));
    return drawn;
}

Done TLY_Power::mnuItemViewPwrTable_Click() {
    if (const Done file = needFile(services_.recordings); !file)
        return file;
    return voltage_.ensureKnown() ? views_.showPowerTable() : Done();
}

Done TLY_Power::mnuItemViewpwrsummry_Click() {
    if (const Done file = needFile(services_.recordings); !file)
        return file;
    return voltage_.ensureKnown() ? views_.showPowerSummary() : Done();
}

void TLY_Power::mnuItemPF_Click() {
    Display& display = services_.display;
    const auto answer = services_.prompt.input(
        {.text = std::string(powerFactorPrompt), .preset = plain(display.powerFactor())});
    if (!answer || answer->empty())
        return;
    display.setPowerFactor(powerFactorOf(*answer));
    views_.renewPower();
    if (const std::string hint = powerFactorHint(*answer); !hint.empty())
        status_.remark(words(hint));
}

} // namespace tally
