// SPDX-License-Identifier: GPL-3.0-or-later
// The File commands of the chart: chart files, pictures, the clipboard.
#include "app/Menus.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_Edit.h"
#include "app/TLY_File.h"
#include "app/TLY_Paper.h"
#include "app/TLY_View.h"
#include "app/forms/Words.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartFile.h"
#include "view/forms/ChartPicture.h"
#include "view/forms/ChartToolBar.h"
#include "view/forms/TextView.h"

namespace tally {

void TLY_File::connectChart(Chart& chart, ChartToolBar& bar) {
    const auto on = [this](QAction* action, auto command) {
        QObject::connect(action, &QAction::triggered, &window_,
                         [this, command] { window_.dispatcher().run(command); });
    };
    on(bar.open, [this] { mnuItemImport_Click(); });
    on(bar.save, [this] { saveChart(); });
    on(bar.picture, [this] { savePicture(); });
    on(bar.copy, [this] { copyShown(); });
    on(bar.print, [this] { window_.paper().printShown(); });
    on(bar.preview, [this] { window_.paper().previewShown(); });
    on(bar.addNote, [this] { window_.edit().mnuItemadd_Click(); });
    on(bar.clearNotes, [this] { window_.edit().mnuItemClearNote_Click(); });
    QObject::connect(bar.zoomIn, &QAction::triggered, &chart, &Chart::zoomIn);
    QObject::connect(bar.zoomOut, &QAction::triggered, &chart, &Chart::zoomOut);
    QObject::connect(bar.reset, &QAction::triggered, &chart, &Chart::resetView);
}

void TLY_File::mnuItemImport_Click() {
    const Services& s = window_.services();
    const auto path = s.prompt.chooseFile({.filter = std::string(importFilter), .folder = folder()});
    if (!path)
        return;
    const ChartFile::Result result = ChartFile::read(s.files.read(*path, ChartFile::mostBytes + 1));
    if (!result.contents) {
        s.prompt.tell(result.why);
        return;
    }
    window_.view().showImported(result.contents->plot);
    window_.screen().chart().setNotes(result.contents->notes);
    window_.status().remark(words(*path));
}

void TLY_File::saveChart() {
    const Services& s = window_.services();
    const Chart& chart = window_.screen().chart();
    const auto path =
        s.prompt.chooseFile({.save = true, .filter = std::string(chartFilter), .folder = folder()});
    if (path)
        s.files.write(*path, ChartFile::write(chart.plot(), chart.notes()));
}

void TLY_File::savePicture() {
    const Services& s = window_.services();
    const Chart& chart = window_.screen().chart();
    const auto path =
        s.prompt.chooseFile({.save = true, .filter = std::string(pictureFilter), .folder = folder()});
    if (!path)
        return;
    std::string why;
    if (!exportPicture(chart.plot(), chart.notes(), *path, chart.size(), s.files, &why))
        s.prompt.tell(why);
}

void TLY_File::copyShown() {
    Screen& screen = window_.screen();
    if (screen.page() == Screen::Page::chart && !screen.chart().isEmpty())
        screen.chart().copyPicture();
    else if (screen.page() == Screen::Page::text)
        screen.text().copy();
}

} // namespace tally
