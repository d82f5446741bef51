// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TLY_Navigate.h"

#include "app/Menus.h"
#include "app/Screen.h"
#include "app/TLY_Chart.h"
#include "app/Views.h"
#include "app/forms/StatusPanels.h"
#include "core/forms/Words.h"
#include "view/FilesTogether.h"
#include "view/forms/Chart.h"
#include "view/forms/ChartToolBar.h"
#include "view/forms/SpanPanel.h"

#include <QAction>

namespace tally {

namespace {

constexpr int limitLines = 3;
constexpr double panPart = 0.1;

std::string lineItem(int line) {
    return "mnuItemLine" + std::to_string(line + 1);
}

} // namespace

TLY_Navigate::TLY_Navigate(const Services& services, Dispatcher& dispatcher, Views& views, TLY_Chart& chart,
                           Screen& screen, Menus& menus, StatusPanels& status)
    : services_(services),
      dispatcher_(dispatcher),
      views_(views),
      chartCommands_(chart),
      screen_(screen),
      menus_(menus),
      status_(status) {
    for (const char* name :
         {"mnuItemAlign", "mnuItemBox", "mnuItemFigures", "mnuItemLine1", "mnuItemLine2", "mnuItemLine3"})
        menus_.item(name).setCheckable(true);
}

void TLY_Navigate::connectMenus(const Run& run) {
    connectRanges(run);
    connectPictures();
    QObject::connect(&screen_, &Screen::chartMade, &screen_, [this, run] { chartMade(run); });
    QObject::connect(&screen_, &Screen::currentChanged, &screen_, [this] { refresh(); });
    dispatcher_.after = [this] {
        refresh();
        renewFigures();
    };
    refresh();
}

void TLY_Navigate::connectRanges(const Run& run) {
    const auto on = [&](std::string_view name, auto handler) {
        menus_.handle(name, [run, handler] { run(handler); });
    };
    on("mnuItemBack", [this] { return goBack(); });
    on("mnuItemForward", [this] { return goForward(); });
    on("mnuItemShowAll", [this] { return showAll(); });
    on("mnuItemPreviousDay", [this] { return step(Period::day, -1); });
    on("mnuItemNextDay", [this] { return step(Period::day, 1); });
    on("mnuItemPreviousWeek", [this] { return step(Period::week, -1); });
    on("mnuItemNextWeek", [this] { return step(Period::week, 1); });
    on("mnuItemPreviousMonth", [this] { return step(Period::month, -1); });
    on("mnuItemNextMonth", [this] { return step(Period::month, 1); });
    on("mnuItemAlign", [this] { return align(); });
    on("mnuItemFixedAxis", [this] { return fixedAxis(); });
    on("mnuItemLimits", [this] { return limits(); });
    on("mnuItemPicture", [this] { return chartCommands_.savePicture(); });
    on("mnuItemSaveChart", [this]() -> Done {
        chartCommands_.saveChart();
        return {};
    });
    on("mnuItemCopy", [this]() -> Done {
        chartCommands_.copyShown();
        return {};
    });
    on("mnuItemPreview", [this]() -> Done {
        chartCommands_.previewShown();
        return {};
    });
}

// What changes the picture only needs no command of the window.
void TLY_Navigate::connectPictures() {
    const auto on = [this](std::string_view name, auto handler) {
        menus_.handle(name, [this, handler] { handler(screen_.chart()); });
    };
    on("mnuItemEnlarge", [](Chart& chart) { chart.zoomIn(); });
    on("mnuItemReduce", [](Chart& chart) { chart.zoomOut(); });
    on("mnuItemWholePicture", [](Chart& chart) { chart.resetView(); });
    on("mnuItemBox", [this](Chart& chart) { chart.setBoxMode(menus_.item("mnuItemBox").isChecked()); });
    on("mnuItemEarlier", [](Chart& chart) { chart.pan(-panPart, 0); });
    on("mnuItemLater", [](Chart& chart) { chart.pan(panPart, 0); });
    for (int line = 0; line < limitLines; ++line)
        on(lineItem(line), [line](Chart& chart) { chart.toggleLine(line); });
    menus_.handle("mnuItemFigures", [this] { showFigures(menus_.item("mnuItemFigures").isChecked()); });
}

void TLY_Navigate::chartMade(const Run& run) {
    Chart& chart = screen_.chart();
    QObject::connect(&chart, &Chart::zoomWanted, &screen_, [this] {
        if (menus_.item("mnuZoom").isEnabled())
            menus_.item("mnuZoom").trigger();
    });
    QObject::connect(&chart, &Chart::leaveWanted, &screen_, [this] {
        if (services_.display.zoomed())
            menus_.item("mnuItemBack").trigger();
    });
    QObject::connect(&chart, &Chart::spanLeft, &screen_, [this, run] {
        if (onPlot())
            run([this]() -> Done {
                unmark();
                return views_.redraw();
            });
    });
    QObject::connect(&chart, &Chart::spanDrawn, &screen_, [this] { renewFigures(); });
    QObject::connect(&chart, &Chart::boxModeChanged, &screen_, [this] { refresh(); });
    QObject::connect(&chart, &Chart::linesChanged, &screen_, [this] { refresh(); });
    QObject::connect(&screen_.spanPanel(), &SpanPanel::closeWanted, &screen_, [this] { showFigures(false); });
    QObject::connect(screen_.chartBar().figures, &QAction::triggered, &screen_,
                     [this](bool on) { showFigures(on); });
}

bool TLY_Navigate::onChart() const {
    return screen_.page() == Screen::Page::chart && !screen_.chart().isEmpty();
}

bool TLY_Navigate::onPlot() const {
    return onChart() && isPlot(services_.display.view());
}

void TLY_Navigate::refresh() {
    setSwitches();
    menus_.item("mnuItemAlign").setChecked(services_.display.byTime());
    const bool chart = onChart();
    menus_.item("mnuItemBox").setChecked(chart && screen_.chart().boxMode());
    const bool figures = chart && screen_.spanPanel().isVisibleTo(&screen_);
    menus_.item("mnuItemFigures").setChecked(figures);
    if (chart)
        screen_.chartBar().figures->setChecked(figures);
    for (int line = 0; line < limitLines; ++line) {
        QAction& item = menus_.item(lineItem(line));
        const bool there = chart && line < int(screen_.chart().plot().series.size());
        menus_.set(lineItem(line), there);
        item.setVisible(there || line == 0);
        item.setChecked(there && !screen_.chart().lines().isHidden(line));
        const std::string legend = there ? screen_.chart().plot().series[std::size_t(line)].legend : "";
        item.setText(QStringLiteral("Line &%1").arg(line + 1) +
                     (legend.empty() ? QString()
                                     : QStringLiteral(": ") +
                                           words(legend).replace(QLatin1Char('&'), QStringLiteral("&&"))));
    }
}

void TLY_Navigate::setSwitches() {
    const Display& display = services_.display;
    const bool files = services_.recordings.isOpen(0) && display.view() != View::none &&
                       display.view() != View::chartFile && display.view() != View::reception;
    menus_.set("mnuItemBack", files && display.canGoBack());
    menus_.set("mnuItemForward", files && display.canGoForward());
    menus_.set("mnuItemShowAll", files && display.zoomed());
    for (const char* name : {"mnuItemPreviousDay", "mnuItemNextDay", "mnuItemPreviousWeek", "mnuItemNextWeek",
                             "mnuItemPreviousMonth", "mnuItemNextMonth", "mnuItemFixedAxis", "mnuItemLimits"})
        menus_.set(name, files);
    const bool chart = onChart();
    for (const char* name :
         {"mnuItemEnlarge", "mnuItemReduce", "mnuItemWholePicture", "mnuItemBox", "mnuItemEarlier",
          "mnuItemLater", "mnuItemFigures", "mnuItemPicture", "mnuItemSaveChart"})
        menus_.set(name, chart);
    const bool shown = chart || screen_.page() == Screen::Page::text;
    menus_.set("mnuItemCopy", shown);
    menus_.set("mnuItemPreview", shown);
    menus_.set("mnuItemAlign", display.byTime() || startsDiffer(services_.recordings));
}

Done TLY_Navigate::shownAgain() {
    const bool plot = isPlot(services_.display.view());
    Done done = views_.again();
    if (done && plot && services_.display.zoomed())
        menus_.apply(MenuEvent::zoomed);
    return done;
}

Done TLY_Navigate::goBack() {
    services_.display.goBack(services_.recordings);
    return shownAgain();
}

Done TLY_Navigate::goForward() {
    services_.display.goForward(services_.recordings);
    return shownAgain();
}

Done TLY_Navigate::showAll() {
    services_.display.showAll(services_.recordings);
    return shownAgain();
}

Done TLY_Navigate::step(Period period, int direction) {
    const Recordings& recordings = services_.recordings;
    Display& display = services_.display;
    const auto range = periodBeside(recordings.info(0), display.reach(recordings),
                                    display.displayed(recordings), period, direction);
    if (!range) {
        status_.remark(direction > 0 ? QStringLiteral("There are no readings after this.")
                                     : QStringLiteral("There are no readings before this."));
        return {};
    }
    display.applyRange(recordings, range->first, range->last);
    return shownAgain();
}

Done TLY_Navigate::align() {
    Display& display = services_.display;
    const bool byTime = !display.byTime();
    if (Done done = display.showByTime(services_.recordings, byTime); !done)
        return done;
    Done done = views_.again();
    if (done)
        views_.showTogether();
    return done;
}

AxisUnit TLY_Navigate::unitShown() const {
    return services_.display.powerView() ? AxisUnit::kilowatts
                                         : axisUnitOf(services_.recordings.info(0).unit());
}

Done TLY_Navigate::fixedAxis() {
    Display& display = services_.display;
    const AxisUnit shown = unitShown();
    const auto answer = services_.prompt.input(
        {.text = std::string(fixedAxisPrompt), .preset = fixedAxisText(display.axis(shown))});
    if (!answer)
        return {};
    const auto entry = fixedAxisOf(*answer);
    if (!entry)
        return tl::make_unexpected(entry.error());
    display.setFixedAxis(entry->unit.value_or(shown), entry->fixed);
    return views_.again();
}

Done TLY_Navigate::limits() {
    Display& display = services_.display;
    const AxisUnit shown = unitShown();
    const auto answer = services_.prompt.input(
        {.text = std::string(limitsPrompt), .preset = limitsText(display.axis(shown))});
    if (!answer)
        return {};
    const auto entries = limitsOf(*answer, shown);
    if (!entries)
        return tl::make_unexpected(entries.error());
    std::map<AxisUnit, std::vector<LimitLine>> lines = {{shown, {}}};
    for (const LimitEntry& entry : *entries)
        lines[entry.unit].push_back(entry.line);
    for (auto& [unit, each] : lines)
        display.setLimits(unit, each);
    return views_.again();
}

void TLY_Navigate::unmark() {
    services_.display.unmark(services_.recordings);
    menus_.set("mnuZoom", false);
}

void TLY_Navigate::showFigures(bool on) {
    screen_.spanPanel().setVisible(on);
    renewFigures();
    refresh();
}

// Of the span, also while it is being drawn; without one of what is displayed.
void TLY_Navigate::renewFigures() {
    if (!onPlot() || !screen_.spanPanel().isVisibleTo(&screen_))
        return;
    const Chart& chart = screen_.chart();
    const Plot& plot = chart.plot();
    const auto span = chart.span().value_or(std::pair(0, plot.points - 1));
    const Range range = {plot.firstEntry + plot.entriesPerPoint * span.first,
                         plot.firstEntry + plot.entriesPerPoint * (span.second + 1) - 1};
    const auto figures = views_.figures(range);
    if (figures)
        screen_.spanPanel().showFigures(spanTitle(*figures), spanRows(*figures), figures->remarks,
                                        spanText(*figures));
    else
        screen_.spanPanel().showFigures(figures.error().message(), {}, {}, {});
}

} // namespace tally
