// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Power.h"

#include "app/Views.h"
#include "app/VoltageQuestion.h"
#include "app/forms/StatusPanels.h"
#include "core/Numbers.h"
#include "core/forms/Words.h"
#include "view/LineVoltage.h"

namespace tally {

Done TLY_Power::mnuItemViewPower_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    const View view = services_.display.view();
    const bool energyShown = view == View::summary && services_.display.powerKnown();
    if (!voltage_.ask())
        return {};
    // A plot that is drawn takes this remark away; without one the old voltage is still shown.
    if (isPowerView(view) || energyShown)
        status_.remark(QStringLiteral("What is shown is no longer current."));
    services_.display.startPower(services_.recordings);
    return views_.redraw();
}

Done TLY_Power::mnuItemViewPwrTable_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    return voltage_.ensureKnown() ? views_.showPowerTable() : Done();
}

Done TLY_Power::mnuItemViewpwrsummry_Click() {
    if (Done file = needFile(services_.recordings); !file)
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
    status_.say(words(powerFactorHint(*answer)));
}

} // namespace tally
