// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Power.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_View.h"
#include "app/Voltages.h"
#include "app/forms/Words.h"
#include "view/Printpwr.h"
#include "view/Printpwrinfo.h"

namespace tally {

std::optional<double> TLY_Power::askVoltage() {
    const Services& s = window_.services();
    const std::string stored = storeVline(s.settings);
    const auto answer = s.prompt.input(
        {.text = std::string(voltagePrompt), .preset = stored, .choices = lastVoltages(s.settings)});
    if (!answer || answer->empty())
        return std::nullopt;
    const double volts = voltsOf(*answer);
    keepVline(s.settings, *answer);
    rememberVoltage(s.settings, *answer);
    hint_ = voltageHint(*answer);
    return volts;
}

void TLY_Power::mnuItemViewPower_Click() {
    if (window_.view().noFile())
        return;
    const auto volts = askVoltage();
    if (!volts)
        return;
    const Services& s = window_.services();
    Plot plot;
    const PowerRefusal refusal = viewPower(s.recordings, s.display, *volts, s.clock, plot);
    if (drawn(refusal, plot) && !hint_.empty())
        window_.status().remark(words(hint_));
}

void TLY_Power::redraw() {
    const Services& s = window_.services();
    Plot plot;
    const PowerRefusal refusal =
        DisplPlotPwr(s.recordings, s.display, voltsOf(vlineOf(s.settings)), s.clock, plot);
    drawn(refusal, plot);
}

bool TLY_Power::drawn(PowerRefusal refusal, const Plot& plot) {
    if (refusal != PowerRefusal::none) {
        if (refusal == PowerRefusal::notAverage)
            window_.menus().set("mnuItemViewPower", false);
        window_.services().prompt.tell(std::string(refusalText(refusal)));
        return false;
    }
    const std::string& source = window_.services().display.powerSource;
    window_.view().show(plot, plot.remark.empty() ? source : source + "; " + plot.remark);
    window_.menus().apply(MenuEvent::powerPlotted);
    return true;
}

bool TLY_Power::ensureDrawn() {
    const DisplayState& display = window_.services().display;
    if (!display.powerDrawn)
        mnuItemViewPower_Click();
    return display.powerDrawn;
}

void TLY_Power::mnuItemViewPwrTable_Click() {
    if (window_.view().noFile() || !ensureDrawn())
        return;
    const Services& s = window_.services();
    const std::string heading = Printpwr(s.recordings, s.display);
    window_.screen().showText(heading, s.recordings.gTable, std::string(powerTableName));
    s.display.viewKind = ViewKind::table;
    window_.status().remark(words(s.display.powerSource));
    window_.menus().apply(MenuEvent::tableShown);
}

void TLY_Power::mnuItemViewpwrsummry_Click() {
    if (window_.view().noFile() || !ensureDrawn())
        return;
    const Services& s = window_.services();
    window_.screen().showText({}, Printpwrinfo(s.recordings, s.display, vlineOf(s.settings)),
                              "power summary");
    s.display.viewKind = ViewKind::powerSummary;
    window_.status().remark(words(s.display.powerSource));
    window_.menus().apply(MenuEvent::textShown);
}

void TLY_Power::mnuItemPF_Click() {
    const Services& s = window_.services();
    const auto answer =
        s.prompt.input({.text = std::string(powerFactorPrompt), .preset = powerFactorPreset(s.recordings)});
    if (answer)
        setPowerFactor(s.recordings, *answer);
}

} // namespace tally
