// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Views.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/forms/NoticeBar.h"
#include "app/forms/StatusPanels.h"
#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/forms/Words.h"
#include "view/FilesTogether.h"
#include "view/PlotModel.h"
#include "view/Print.h"
#include "view/Printinfo.h"
#include "view/Printpwr.h"
#include "view/Printpwrinfo.h"

namespace tally {

namespace {

const QString togetherKey = QStringLiteral("together");

} // namespace

Done needFile(const Recordings& recordings) {
    return recordings.isOpen(0) ? Done() : refuse(std::string(noFileOpen));
}

PowerBasis Views::basis() const {
    return {vlineOf(services_.settings), services_.display.powerFactor()};
}

Expected<Power> Views::power(const FilesShown& files) {
    auto power = powerOf(files.recordings(), files.range(), basis());
    if (power)
        for (const char* name : {"mnuItemViewPwrTable", "mnuItemPrintPwrTable", "mnuitemexprep"})
            menus_.set(name, true);
    return power;
}

// They are made anew after each command, where nobody else would tell a fault.
Expected<SpanFigures> Views::figures(const Range& range) const {
    try {
        return figuresOf(range);
    } catch (const Fault& fault) {
        return refuse(fault.what());
    }
}

Expected<SpanFigures> Views::figuresOf(const Range& range) const {
    const Display& display = services_.display;
    const auto files = FilesShown::of(services_.recordings, display.byTime(), range);
    if (!files)
        return tl::make_unexpected(files.error());
    if (!display.powerView())
        return spanFigures(files->recordings(), files->range(), display.statistic());
    const auto power = powerOf(files->recordings(), files->range(), basis());
    if (!power)
        return tl::make_unexpected(power.error());
    return spanFigures(files->recordings(), *power);
}

// The energy of the displayed range, once a line voltage was asked for.
std::string Views::energy() const {
    if (!services_.display.powerKnown())
        return {};
    const auto shown = files();
    return shown ? energyOf(shown->recordings(), shown->range(), basis()) : std::string();
}

std::optional<SelectedSpan> Views::selected(int slot) const {
    const auto part = services_.display.part(services_.recordings, slot);
    const auto shown = files();
    if (!services_.display.zoomed() || !part || !shown)
        return std::nullopt;
    return SelectedSpan{*part, extremesOf(shown->recordings(), shown->range())};
}

std::string Views::summary(int slot) const {
    return summaryText(services_.recordings, slot, selected(slot), energy());
}

Done Views::redraw() {
    const PlotRequest request = services_.display.plotRequest(services_.recordings);
    const auto files = FilesShown::of(services_.recordings, services_.display.byTime(), request.range);
    if (!files)
        return tl::make_unexpected(files.error());
    if (services_.display.powerView())
        return redrawPower(request, *files);
    const Plot plot = files->plot(DisplPlot(files->recordings(), files->request(request), services_.clock));
    showPlot(plot, View::dataPlot, request);
    status_.remark(words(plot.remark));
    menus_.apply(MenuEvent::plotted);
    return {};
}

void Views::showPlot(const Plot& plot, View view, const PlotRequest& request) {
    services_.display.plotShown(request, view);
    screen_.showPlot(plot, services_.display.onePage());
    showPart(0);
}

Done Views::redrawPower(const PlotRequest& request, const FilesShown& files) {
    const auto power = powerOf(files.recordings(), files.range(), basis());
    if (!power) {
        if (isMinMaxAvg(services_.recordings.info(0).modeLetter))
            menus_.set("mnuItemViewPower", false);
        return tl::make_unexpected(power.error());
    }
    const Plot plot =
        files.plot(DisplPlotPwr(files.recordings(), files.request(request), *power, services_.clock));
    showPlot(plot, View::powerPlot, request);
    const std::string source = powerSource(files.recordings(), *power);
    status_.remark(words(plot.remark.empty() ? source : source + "; " + plot.remark));
    menus_.apply(MenuEvent::powerPlotted);
    return {};
}

void Views::spanMarked() {
    if (!services_.display.onePage())
        menus_.apply(MenuEvent::spanMarked);
}

Done Views::showTable(int slot) {
    const auto part = services_.display.part(services_.recordings, slot);
    if (!part)
        return tl::make_unexpected(part.error());
    services_.display.tableShown(View::table, slot, Print(services_.recordings, slot, *part));
    const Table& table = services_.display.table();
    screen_.showText(table.heading, table.text,
                     "table of " + fileNameOf(services_.recordings.info(slot).path));
    showPart(slot);
    status_.remark({});
    menus_.apply(MenuEvent::tableShown);
    return {};
}

Done Views::showSummary(int slot) {
    const auto part = services_.display.part(services_.recordings, slot);
    if (!part)
        return tl::make_unexpected(part.error());
    services_.display.textShown(View::summary, slot);
    screen_.showText({}, summary(slot), "summary of " + fileNameOf(services_.recordings.info(slot).path));
    showPart(slot);
    status_.remark({});
    menus_.apply(MenuEvent::textShown);
    return {};
}

Done Views::showPowerTable() {
    const auto shown = files();
    if (!shown)
        return tl::make_unexpected(shown.error());
    const auto made = power(*shown);
    if (!made)
        return tl::make_unexpected(made.error());
    services_.display.tableShown(View::powerTable, 0, Printpwr(shown->recordings(), *made));
    const Table& table = services_.display.table();
    screen_.showText(table.heading, table.text, "power table");
    showPart(0);
    status_.remark(words(powerSource(shown->recordings(), *made)));
    menus_.apply(MenuEvent::tableShown);
    return {};
}

Done Views::showPowerSummary() {
    const auto shown = files();
    if (!shown)
        return tl::make_unexpected(shown.error());
    const auto made = power(*shown);
    if (!made)
        return tl::make_unexpected(made.error());
    services_.display.textShown(View::powerSummary, 0);
    screen_.showText({},
                     Printpwrinfo(shown->recordings(), *made, services_.display.zoomed(),
                                  timeOfFiles(services_.recordings)),
                     "power summary");
    showPart(0);
    status_.remark(words(powerSource(shown->recordings(), *made)));
    menus_.apply(MenuEvent::textShown);
    return {};
}

void Views::showReception(const std::string& text, const std::string& remark) {
    services_.display.foreignShown(View::reception);
    screen_.showText({}, text, "a reception that is not saved");
    screen_.setPart({});
    status_.remark(words(remark));
    menus_.apply(MenuEvent::textShown);
}

// The chart has its own name, not that of what it was made from.
void Views::showChartFile(Plot plot, const std::string& path) {
    plot.displaying = fileNameOf(path);
    services_.display.foreignShown(View::chartFile);
    screen_.showPlot(plot, false);
    screen_.setPart({});
    status_.remark(words(path));
    menus_.apply(MenuEvent::textShown);
    menus_.set("mnuZoom", false);
    menus_.set("mnuItemAnnot", true);
    menus_.set("mnuItemClose", true);
}

Done Views::again() {
    switch (services_.display.view()) {
    case View::dataPlot:
    case View::powerPlot:
        return redraw();
    case View::table:
        return showTable(services_.display.shownSlot());
    case View::summary:
        return showSummary(services_.display.shownSlot());
    case View::powerTable:
        return showPowerTable();
    case View::powerSummary:
        return showPowerSummary();
    case View::none:
        renewPage();
        break;
    case View::chartFile:
    case View::reception:
        break;
    }
    return {};
}

void Views::renew() {
    if (!dispatcher_.attempt([this] { return again(); }))
        status_.remark(QStringLiteral("What is shown is no longer current."));
}

void Views::renewPower() {
    const View view = services_.display.view();
    if (isPowerView(view) || view == View::summary)
        renew();
}

void Views::showTogether() {
    QStringList texts;
    const bool byTime = services_.display.byTime();
    // The notice stays while zooms come and go, so it names all that the files share.
    const auto common =
        FilesShown::of(services_.recordings, byTime, services_.display.reach(services_.recordings));
    if (byTime && common)
        texts.append(words(common->remark()) + QLatin1Char('.'));
    else
        for (const std::string& warning : togetherWarnings(services_.recordings))
            texts.append(words(warning) + QLatin1Char('.'));
    if (texts.isEmpty()) {
        notices_.remove(togetherKey);
        return;
    }
    std::vector<NoticeAction> actions;
    if (byTime || startsDiffer(services_.recordings))
        actions.push_back({byTime ? QStringLiteral("Combine by number") : QStringLiteral("Align by time"),
                           [this] { menus_.item("mnuItemAlign").trigger(); }});
    notices_.put(togetherKey, texts.join(QLatin1Char(' ')), actions);
}

// While a part is shown the line of buttons says which.
void Views::showPart(int slot) {
    const auto part = services_.display.part(services_.recordings, slot);
    if (!part || !services_.display.zoomed()) {
        screen_.setPart({});
        return;
    }
    screen_.setPart(QStringLiteral("readings %1 to %2 of %3")
                        .arg(part->first + 1)
                        .arg(part->last + 1)
                        .arg(services_.recordings.info(slot).count));
}

void Views::reset() {
    services_.display.closed();
    screen_.reset();
    notices_.remove(togetherKey);
    status_.remark({});
    status_.pointer({}, {});
}

} // namespace tally
