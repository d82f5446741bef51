// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Chart.h"

#include "app/DefaultFolder.h"
#include "app/Printing.h"
#include "app/Screen.h"
#include "app/Views.h"
#include "app/forms/StatusPanels.h"
#include "core/forms/Words.h"
#include "view/PlotAxis.h"
#include "view/PlotModel.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartFile.h"
#include "view/forms/ChartPicture.h"
#include "view/forms/ChartToolBar.h"
#include "view/forms/TextView.h"

namespace tally {

namespace {

constexpr const char* newNote = "Enter note here";

} // namespace

TLY_Chart::TLY_Chart(const Services& services, Dispatcher& dispatcher, Views& views, Screen& screen,
                     StatusPanels& status, DefaultFolder& folder, Printing& printing)
    : services_(services),
      dispatcher_(dispatcher),
      views_(views),
      screen_(screen),
      status_(status),
      folder_(folder),
      printing_(printing) {
    QObject::connect(&screen, &Screen::chartMade, &screen, [this] { chartMade(); });
}

void TLY_Chart::chartMade() {
    screen_.chart().setTimeOf([this](int point) { return labelAt(point); });
    screen_.chart().setPointTime([this](int point) { return timeAt(point); });
    connectButtons();
    connectMarks();
}

template <class Command>
void TLY_Chart::on(QAction* action, Command command) {
    QObject::connect(action, &QAction::triggered, &screen_, [this, command] { dispatcher_.run(command); });
}

void TLY_Chart::connectButtons() {
    ChartToolBar& bar = screen_.chartBar();
    on(bar.open, [this] { return mnuItemImport_Click(); });
    on(bar.save, [this] { saveChart(); });
    on(bar.picture, [this] { return savePicture(); });
    on(bar.copy, [this] { copyShown(); });
    on(bar.print, [this] { printing_.printShown(); });
    on(bar.preview, [this] { printing_.previewShown(); });
    on(bar.addNote, [this] { return mnuItemadd_Click(); });
    on(bar.clearNotes, [this] { return mnuItemClearNote_Click(); });
    Chart& chart = screen_.chart();
    QObject::connect(bar.zoomIn, &QAction::triggered, &chart, &Chart::zoomIn);
    QObject::connect(bar.zoomOut, &QAction::triggered, &chart, &Chart::zoomOut);
    QObject::connect(bar.reset, &QAction::triggered, &chart, &Chart::resetView);
    // The whole plot is the whole recording too.
    QObject::connect(bar.reset, &QAction::triggered, &screen_, [this] {
        if (isPlot(services_.display.view()) && services_.display.zoomed())
            Q_EMIT screen_.showAllWanted();
    });
}

void TLY_Chart::connectMarks() {
    Chart& chart = screen_.chart();
    QObject::connect(&chart, &Chart::spanStarted, &screen_, [this, &chart](int point) {
        if (isPlot(services_.display.view()))
            dispatcher_.run([&] { services_.display.markStart(chart.plot(), point); });
    });
    QObject::connect(&chart, &Chart::spanEnded, &screen_, [this](int point) {
        if (isPlot(services_.display.view()))
            dispatcher_.run([&] { return spanEnded(point); });
    });
    QObject::connect(&chart, &Chart::pointerMoved, &screen_,
                     [this](int point, int series) { pointerMoved(point, series); });
}

Done TLY_Chart::spanEnded(int point) {
    services_.display.markEnd(screen_.chart().plot(), point);
    Done drawn = views_.redraw();
    if (drawn)
        views_.spanMarked();
    return drawn;
}

// The nearest reading; where there are several lines with the name of its own.
void TLY_Chart::pointerMoved(int point, int series) {
    if (!isPlot(services_.display.view())) {
        status_.pointer({}, {});
        return;
    }
    const Plot& plot = screen_.chart().plot();
    const ReadOut read = readOut(services_.recordings, plot, point, series);
    const bool several = !read.value.empty() && plot.series.size() > 1;
    const std::string name = several ? plot.series[std::size_t(series)].legend + "  " : "";
    status_.pointer(words(read.time), words(name + read.value));
}

std::string TLY_Chart::timeAt(int point) const {
    if (!isPlot(services_.display.view()))
        return {};
    return readOut(services_.recordings, screen_.chart().plot(), point).time;
}

void TLY_Chart::previewShown() {
    printing_.previewShown();
}

// The axis of an enlarged picture reads like the nine labels of the whole one.
std::string TLY_Chart::labelAt(int point) const {
    if (!isPlot(services_.display.view()))
        return {};
    return axisLabel(screen_.chart().plot(), services_.recordings.info(0), point);
}

Done TLY_Chart::mnuItemImport_Click() {
    const auto path =
        services_.prompt.chooseFile({.filter = std::string(importFilter), .folder = folder_.forDialog()});
    if (!path)
        return {};
    const ChartFile::Result result =
        ChartFile::read(services_.files.read(*path, ChartFile::maximumBytes + 1));
    if (!result.contents)
        return refuse(result.why, *path);
    views_.showChartFile(result.contents->plot, *path);
    screen_.chart().setNotes(result.contents->notes);
    return {};
}

void TLY_Chart::saveChart() {
    const Chart& chart = screen_.chart();
    const auto path = services_.prompt.chooseFile(
        {.save = true, .filter = std::string(chartFilter), .folder = folder_.forDialog()});
    if (path)
        services_.files.write(*path, ChartFile::write(chart.plot(), chart.notes()));
}

Done TLY_Chart::savePicture() {
    const Chart& chart = screen_.chart();
    const auto path = services_.prompt.chooseFile(
        {.save = true, .filter = std::string(pictureFilter), .folder = folder_.forDialog()});
    if (!path)
        return {};
    std::string why;
    if (!exportPicture(chart.plot(), chart.notes(), *path, chart.size(), services_.files, &why,
                       chart.sight()))
        return refuse(why);
    return {};
}

void TLY_Chart::copyShown() {
    if (screen_.page() == Screen::Page::chart && !screen_.chart().isEmpty())
        screen_.chart().copyPicture();
    else if (screen_.page() == Screen::Page::text)
        screen_.text().copy();
}

Done TLY_Chart::mnuItemadd_Click() {
    if (Done chart = needChart(); !chart)
        return chart;
    screen_.chart().addNote(newNote);
    status_.remark(QStringLiteral("Drag the note to its place; double-click to edit it; Delete removes it."));
    return {};
}

Done TLY_Chart::mnuItemClearNote_Click() {
    if (Done chart = needChart(); !chart)
        return chart;
    screen_.chart().clearNotes();
    return {};
}

// The items stay enabled when everything was closed.
Done TLY_Chart::needChart() {
    if (screen_.page() == Screen::Page::chart && !screen_.chart().isEmpty())
        return {};
    Done file = needFile(services_.recordings);
    return file ? views_.redraw() : file;
}

} // namespace tally
