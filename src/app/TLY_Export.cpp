// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Export.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/TLY.h"
#include "app/TLY_Power.h"
#include "app/TLY_View.h"
#include "export/Export.h"
#include "export/ReportPower.h"
#include "export/expmv90.h"
#include "view/forms/TextView.h"

namespace tally {

ExportDesk TLY_Export::desk() const {
    const Services& s = window_.services();
    return {s.recordings, s.display, s.files, s.prompt, s.settings.get("Directory", "default")};
}

std::string TLY_Export::title() const {
    return window_.screen().text().heading().toStdString();
}

void TLY_Export::MnuItemexpdatacsv_Click() {
    const Services& s = window_.services();
    if (s.display.viewKind == ViewKind::dataPlot) {
        SelectFile(s.recordings, s.chooser, pending::csvExport);
        if (s.recordings.ginx == Recordings::cancelled)
            return;
    } else {
        window_.view().makeTableCurrent();
    }
    tally::MnuItemexpdatacsv_Click(desk(), title());
    exported();
}

void TLY_Export::mnuItemexpdata1perLine_Click() {
    window_.view().makeTableCurrent();
    tally::mnuItemexpdata1perLine_Click(desk(), title());
    exported();
}

void TLY_Export::mnuitemexprep_Click() {
    expmv90(desk(), recorderId_, [this] { return makePower(); });
    exported();
}

// The report reads the kilowatts of the last power plot; those of another range are worked out first.
bool TLY_Export::makePower() {
    const Services& s = window_.services();
    if (s.display.powerDrawn && powerCovers(s.display, reportRange(s.recordings, s.display)))
        return true;
    const auto volts = window_.power().askVoltage();
    if (!volts)
        return false;
    const PowerRefusal refusal = powerForReport(s.recordings, s.display, *volts, s.clock);
    if (refusal != PowerRefusal::none)
        s.prompt.tell(std::string(refusalText(refusal)));
    return refusal == PowerRefusal::none;
}

// A view has to be shown again before the next export.
void TLY_Export::exported() {
    if (window_.services().display.viewKind == ViewKind::none)
        window_.menus().apply(MenuEvent::textShown);
}

} // namespace tally
