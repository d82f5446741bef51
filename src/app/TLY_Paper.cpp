// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Paper.h"

#include "app/Printing.h"
#include "app/Views.h"
#include "app/VoltageQuestion.h"
#include "view/FilesTogether.h"
#include "view/Print.h"
#include "view/Printinfo.h"
#include "view/Printpwr.h"
#include "view/Printpwrinfo.h"

namespace tally {

Done TLY_Paper::mnuItemPrintSum_Click() {
    Recordings& recordings = services_.recordings;
    if (!recordings.isOpen(0))
        return refuse(std::string(noFileForPrintSummary));
    SelectFile(recordings, services_.chooser);
    const int slot = recordings.ginx;
    if (slot == Recordings::cancelled)
        return {};
    if (const auto part = services_.display.part(recordings, slot); !part)
        return tl::make_unexpected(part.error());
    printing_.print("Summary of " + fileNameOf(recordings.info(slot).path), {}, views_.summary(slot));
    return {};
}

Done TLY_Paper::mnuItemPrintTable_Click() {
    Recordings& recordings = services_.recordings;
    if (Done file = needFile(recordings); !file)
        return file;
    SelectFile(recordings, services_.chooser);
    const int slot = recordings.ginx;
    if (slot == Recordings::cancelled)
        return {};
    const auto part = services_.display.part(recordings, slot);
    if (!part)
        return tl::make_unexpected(part.error());
    const Table table = Print(recordings, slot, *part);
    printing_.print("Readings of " + fileNameOf(recordings.info(slot).path), table.heading, table.text);
    return {};
}

Done TLY_Paper::mnuItemPrintpwrSum_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    if (!voltage_.ensureKnown())
        return {};
    const auto files = views_.files();
    if (!files)
        return tl::make_unexpected(files.error());
    const auto power = views_.power(*files);
    if (!power)
        return tl::make_unexpected(power.error());
    printing_.print("Power summary", {},
                    Printpwrinfo(files->recordings(), *power, services_.display.zoomed(),
                                 timeOfFiles(services_.recordings)),
                    files->remark());
    return {};
}

Done TLY_Paper::mnuItemPrintPwrTable_Click() {
    if (Done file = needFile(services_.recordings); !file)
        return file;
    if (!voltage_.ensureKnown())
        return {};
    const auto files = views_.files();
    if (!files)
        return tl::make_unexpected(files.error());
    const auto power = views_.power(*files);
    if (!power)
        return tl::make_unexpected(power.error());
    const Table table = Printpwr(files->recordings(), *power);
    printing_.print("Power table", table.heading, table.text, files->remark());
    return {};
}

} // namespace tally
