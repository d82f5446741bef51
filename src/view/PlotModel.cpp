// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotModel.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/PlotAxis.h"
#include "view/PlotSeries.h"
#include "view/PlotTitle.h"
#include "view/ShownRange.h"

#include <algorithm>
#include <array>

namespace tally {

namespace {

// By the place in a triple: average, maximum, minimum.
constexpr std::array<const char*, 3> statisticLegends = {"Average", "Max", "Min"};
constexpr std::array<const char*, 3> statisticTitles = {"Data Displayed: AVERAGE", "Data Displayed: MAXIMUM",
                                                        "Data Displayed: MINIMUM"};

struct Extremes {
    std::int16_t smallest = 0;
    std::int16_t largest = 0;
};

// Over all readings of the range in every file; a reading that a file does not have counts as 0.
Extremes extremesOf(const Recordings& recordings, const ShownRange& shown) {
    Extremes extremes;
    bool first = true;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const ShownRange range = sameIntervals(recordings, shown, slot);
        const auto readings = present(recordings, slot, range);
        std::int16_t smallest = readings.empty() ? std::int16_t{0} : readings.front();
        std::int16_t largest = smallest;
        for (const std::int16_t reading : readings) {
            smallest = std::min(smallest, reading);
            largest = std::max(largest, reading);
        }
        if (static_cast<int>(readings.size()) < range.entries()) {
            smallest = std::min(smallest, std::int16_t{0});
            largest = std::max(largest, std::int16_t{0});
        }
        extremes.smallest = first ? smallest : std::min(extremes.smallest, smallest);
        extremes.largest = first ? largest : std::max(extremes.largest, largest);
        first = false;
    }
    return extremes;
}

PlotSeries seriesOf(const Recordings& recordings, int slot, const ShownRange& shown, int offset,
                    const std::string& legend) {
    const ShownRange range = sameIntervals(recordings, shown, slot);
    const int stride = valuesPerInterval(recordings.info(0).modeLetter);
    return {legend, seriesValues(recordings, slot, range, stride, offset),
            forcedRuns(recordings, slot, range, stride, offset)};
}

std::vector<PlotSeries> allSeries(const Recordings& recordings, const DisplayState& state,
                                  const ShownRange& shown) {
    std::vector<PlotSeries> all;
    const bool triples = isMinMaxAvg(recordings.info(0).modeLetter);
    if (triples && recordings.openCount() == 1) {
        for (std::size_t i = 0; i < statisticLegends.size(); ++i)
            all.push_back(seriesOf(recordings, 0, shown, static_cast<int>(i), statisticLegends[i]));
        return all;
    }
    const int offset = triples ? static_cast<int>(state.dataDisplayed) - 1 : 0;
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        all.push_back(seriesOf(recordings, slot, shown, offset, fileNameOf(recordings.info(slot).path)));
    return all;
}

// The line above the title block: the file, or which statistic is shown of several.
std::string firstLine(const Recordings& recordings, const DisplayState& state) {
    const FileFacts& info = recordings.info(0);
    if (!isMinMaxAvg(info.modeLetter))
        return {};
    if (recordings.openCount() > 1)
        return std::string(statisticTitles.at(static_cast<std::size_t>(state.dataDisplayed) - 1)) + "\r\n";
    return state.spanSelected ? std::string() : "File: " + info.path + "\r\n";
}

void applyUserScale(Plot& plot, const DisplayState& state) {
    if (!state.userScale)
        return;
    plot.yMin = state.yMinimum;
    // An axis needs some height to be drawn.
    if (plot.yMax <= plot.yMin)
        plot.yMax = plot.yMin + 10;
}

} // namespace

Plot DisplPlot(Recordings& recordings, DisplayState& state, const Clock& clock) {
    if (recordings.openCount() == 0)
        throw fault::subscript();
    const FileFacts& info = recordings.info(0);
    const ShownRange shown = rangeToDraw(recordings, state);
    settleRange(recordings, state, shown);

    Plot plot;
    plot.yTitle = info.unit() == 'V' ? "VOLTS" : "AMPS";
    plot.firstEntry = shown.first;
    plot.entriesPerPoint = valuesPerInterval(info.modeLetter);
    plot.points = shown.entries() / plot.entriesPerPoint;
    plot.series = allSeries(recordings, state, shown);
    plot.title = firstLine(recordings, state) + titleBlock(recordings, state, clock);
    plot.displaying = openNames(recordings);
    plot.remark = shorterFiles(recordings);
    labelAxis(plot, info);

    const Extremes extremes = extremesOf(recordings, shown);
    scaleAxis(plot, extremes.smallest, extremes.largest);
    applyUserScale(plot, state);
    state.extremeMin = extremes.smallest;
    state.extremeMax = extremes.largest;
    state.viewKind = ViewKind::dataPlot;
    state.powerView = false;
    clearOneShots(state);
    return plot;
}

bool needsStatistic(const Recordings& recordings) {
    return recordings.openCount() > 1 && isMinMaxAvg(recordings.info(0).modeLetter);
}

ReadOut readOut(const Recordings& recordings, const Plot& plot, int point, int series) {
    if (!recordings.isOpen(0) || point < 0 || point >= plot.points || series < 0 ||
        series >= static_cast<int>(plot.series.size()))
        return {};
    const int entry = plot.firstEntry + plot.entriesPerPoint * point;
    const float value = plot.series[static_cast<std::size_t>(series)].values[static_cast<std::size_t>(point)];
    const std::string unit = plot.yTitle == "KW" ? " KW" : plot.yTitle == "VOLTS" ? " V" : " A";
    return {screenTime(timeOf(recordings.info(0), entry)), Format(value, "##0.0") + unit};
}

} // namespace tally
