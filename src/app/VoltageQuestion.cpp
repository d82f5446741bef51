// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/VoltageQuestion.h"

#include "app/Voltages.h"
#include "app/forms/StatusPanels.h"
#include "core/forms/Words.h"
#include "view/LineVoltage.h"

namespace tally {

bool VoltageQuestion::ask() {
    const std::string stored = storeVline(services_.settings);
    const auto answer = services_.prompt.input(
        {.text = std::string(voltagePrompt), .preset = stored, .choices = lastVoltages(services_.settings)});
    if (!answer || answer->empty())
        return false;
    status_.say(words(voltageHint(*answer)));
    keepVline(services_.settings, *answer);
    rememberVoltage(services_.settings, *answer);
    services_.display.setPowerKnown();
    return true;
}

} // namespace tally
