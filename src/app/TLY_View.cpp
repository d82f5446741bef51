// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_View.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/StatusPanels.h"
#include "app/TLY.h"
#include "app/TLY_Power.h"
#include "app/forms/Words.h"
#include "view/PlotAxis.h"
#include "view/PlotModel.h"
#include "view/Print.h"
#include "view/Printinfo.h"
#include "view/ShownRange.h"
#include "view/Span.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartToolBar.h"
#include "view/forms/DisplaySel.h"

namespace tally {

TLY_View::TLY_View(TLY& window) : window_(window) {
    QObject::connect(&window.screen(), &Screen::chartMade, &window,
                     [this] { connectChart(window_.screen().chart()); });
}

void TLY_View::connectChart(Chart& chart) {
    chart.setTimeOf([this](int point) { return labelAt(point); });
    QObject::connect(&chart, &Chart::spanStarted, &window_, [this, &chart](int point) {
        if (!imported_)
            window_.dispatcher().run([&] {
                markSpanStart(window_.services().recordings, window_.services().display, chart.plot(), point);
            });
    });
    QObject::connect(&chart, &Chart::spanEnded, &window_, [this](int point) {
        if (!imported_)
            window_.dispatcher().run([&] { spanEnded(point); });
    });
    QObject::connect(&chart, &Chart::pointerMoved, &window_, [this](int point) { pointerMoved(point); });
}

bool TLY_View::noFile() const {
    if (window_.services().recordings.isOpen(0))
        return false;
    window_.services().prompt.tell(std::string(noFileOpen));
    return true;
}

void TLY_View::mnuItemViewPlot_Click() {
    if (noFile())
        return;
    const Services& s = window_.services();
    if (needsStatistic(s.recordings)) {
        DisplaySel ask(s.display.dataDisplayed, &window_);
        if (ask.exec() != QDialog::Accepted)
            return;
        s.display.dataDisplayed = ask.chosen();
    }
    startPlot(s.recordings, s.display);
    redraw();
}

void TLY_View::redraw() {
    const Services& s = window_.services();
    if (s.display.powerView) {
        window_.power().redraw();
        return;
    }
    const Plot plot = DisplPlot(s.recordings, s.display, s.clock);
    show(plot, plot.remark);
    window_.menus().apply(MenuEvent::plotted);
}

void TLY_View::show(const Plot& plot, const std::string& remark) {
    imported_ = false;
    window_.screen().showPlot(plot, window_.services().display.onePage);
    window_.status().remark(words(remark));
}

void TLY_View::showImported(const Plot& plot) {
    imported_ = true;
    window_.screen().showPlot(plot, false);
    window_.services().display.viewKind = ViewKind::none;
    window_.menus().apply(MenuEvent::textShown);
    window_.menus().set("mnuZoom", false);
    window_.menus().set("mnuItemAnnot", true);
    window_.menus().set("mnuItemClose", true);
}

void TLY_View::spanEnded(int point) {
    const Services& s = window_.services();
    markSpanEnd(s.recordings, s.display, window_.screen().chart().plot(), point);
    redraw();
    if (!s.display.onePage)
        window_.menus().apply(MenuEvent::spanMarked);
}

void TLY_View::pointerMoved(int point) {
    if (point < 0 || imported_) {
        window_.status().pointer({}, {});
        return;
    }
    const ReadOut read = readOut(window_.services().recordings, window_.screen().chart().plot(), point);
    window_.status().pointer(words(read.time), words(read.value));
}

// The axis of an enlarged picture reads like the nine labels of the whole one.
std::string TLY_View::labelAt(int point) const {
    const Recordings& recordings = window_.services().recordings;
    if (imported_ || !recordings.isOpen(0))
        return {};
    return axisLabel(window_.screen().chart().plot(), recordings.gInfo[0], point);
}

void TLY_View::makeTableCurrent() {
    const bool power = window_.screen().displaying() == powerTableName;
    if (window_.services().display.viewKind == ViewKind::table)
        window_.services().recordings.ginx = power ? 0 : shownSlot_;
}

void TLY_View::refresh() {
    const Services& s = window_.services();
    const Screen::Page page = window_.screen().page();
    const int current = s.recordings.ginx;
    if (page == Screen::Page::chart && !imported_)
        redraw();
    s.recordings.ginx = shownSlot_;
    if (page == Screen::Page::text && s.display.viewKind == ViewKind::summary)
        showSummary();
    else if (page == Screen::Page::text && s.display.viewKind == ViewKind::table &&
             window_.screen().displaying() != powerTableName)
        showTable();
    s.recordings.ginx = current;
}

void TLY_View::mnuItemRefresh_Click() {
    if (!noFile())
        redraw();
}

void TLY_View::mnuZoom_Click() {
    if (noFile())
        return;
    requestZoom(window_.services().recordings, window_.services().display);
    redraw();
    window_.menus().apply(MenuEvent::zoomed);
}

void TLY_View::mnuItemScale_Click() {
    if (noFile())
        return;
    const auto answer = window_.services().prompt.input({.text = std::string(scalePrompt), .preset = {}});
    if (!answer)
        return;
    setScale(window_.services().display, *answer);
    redraw();
}

void TLY_View::mnuItemOnepgPlot_Click() {
    if (noFile())
        return;
    const Services& s = window_.services();
    startOnePage(s.recordings, s.display);
    redraw();
    window_.menus().apply(MenuEvent::onePage);
}

void TLY_View::mnuItemViewTable_Click() {
    const Services& s = window_.services();
    if (!s.recordings.isOpen(0)) {
        s.prompt.tell(std::string(noFileForTable));
        return;
    }
    SelectFile(s.recordings, s.chooser, pending::table);
    if (s.recordings.ginx != Recordings::cancelled)
        showTable();
}

void TLY_View::showTable() {
    const Services& s = window_.services();
    const std::string heading = Print(s.recordings, s.display);
    shownSlot_ = s.recordings.ginx;
    window_.screen().showText(heading, s.recordings.gTable,
                              "table of " + fileNameOf(s.recordings.info(s.recordings.ginx).path));
    s.display.viewKind = ViewKind::table;
    window_.status().remark({});
    window_.menus().apply(MenuEvent::tableShown);
}

void TLY_View::mnuItemViewsummary_Click() {
    const Services& s = window_.services();
    if (!s.recordings.isOpen(0)) {
        s.prompt.tell(std::string(noFileForSummary));
        return;
    }
    SelectFile(s.recordings, s.chooser, pending::summary);
    if (s.recordings.ginx != Recordings::cancelled)
        showSummary();
}

void TLY_View::showSummary() {
    const Services& s = window_.services();
    shownSlot_ = s.recordings.ginx;
    window_.screen().showText({}, Printinfo(s.recordings, s.display),
                              "summary of " + fileNameOf(s.recordings.info(s.recordings.ginx).path));
    s.display.viewKind = ViewKind::summary;
    window_.status().remark({});
    window_.menus().apply(MenuEvent::textShown);
}

} // namespace tally
