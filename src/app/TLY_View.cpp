// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_View.h"

#include "app/Menus.h"
#include "app/Views.h"
#include "core/Fault.h"
#include "view/PlotModel.h"
#include "view/Print.h"
#include "view/Printinfo.h"
#include "view/forms/DisplaySel.h"

namespace tally {

namespace {

constexpr std::string_view scaleAdvice = "The y axis can begin at a whole number from -32768 to 32767.";

} // namespace

Done TLY_View::mnuItemViewPlot_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    Display& display = services_.display;
    if (needsStatistic(services_.recordings)) {
        DisplaySel ask(display.statistic(), window_);
        if (ask.exec() != QDialog::Accepted)
            return {};
        display.setStatistic(ask.chosen());
    }
    display.startPlot(services_.recordings);
    return views_.redraw();
}

Done TLY_View::mnuItemRefresh_Click() {
    Done file = needFile(services_.recordings);
    return file ? views_.redraw() : file;
}

Done TLY_View::mnuZoom_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    services_.display.requestZoom();
    Done drawn = views_.redraw();
    if (drawn)
        menus_.apply(MenuEvent::zoomed);
    return drawn;
}

Done TLY_View::mnuItemScale_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    const auto answer = services_.prompt.input({.text = std::string(scalePrompt), .preset = {}});
    if (!answer)
        return {};
    try {
        services_.display.setScale(*answer);
    } catch (const Fault& fault) {
        return refuse(faultReport(fault), *answer, std::string(scaleAdvice));
    }
    return views_.redraw();
}

Done TLY_View::mnuItemOnepgPlot_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    services_.display.startOnePage(services_.recordings);
    Done drawn = views_.redraw();
    if (drawn)
        menus_.apply(MenuEvent::onePage);
    return drawn;
}

Done TLY_View::mnuItemViewTable_Click() {
    if (!services_.recordings.isOpen(0))
        return refuse(std::string(noFileForTable));
    SelectFile(services_.recordings, services_.chooser, pending::table);
    const int slot = services_.recordings.ginx;
    return slot == Recordings::cancelled ? Done() : views_.showTable(slot);
}

Done TLY_View::mnuItemViewsummary_Click() {
    if (!services_.recordings.isOpen(0))
        return refuse(std::string(noFileForSummary));
    SelectFile(services_.recordings, services_.chooser, pending::summary);
    const int slot = services_.recordings.ginx;
    return slot == Recordings::cancelled ? Done() : views_.showSummary(slot);
}

} // namespace tally
