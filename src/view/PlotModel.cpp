// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotModel.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/FilesTogether.h"
#include "view/PlotAxis.h"
#include "view/PlotSeries.h"
#include "view/PlotTitle.h"
#include "view/PointReadings.h"
#include "view/Range.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tally {

namespace {

// By the place in a triple: average, maximum, minimum.
constexpr std::array<const char*, 3> statisticLegends = {"Average", "Max", "Min"};
constexpr std::array<const char*, 3> statisticTitles = {"Data Displayed: AVERAGE", "Data Displayed: MAXIMUM",
                                                        "Data Displayed: MINIMUM"};

PlotSeries seriesOf(const Recordings& recordings, int slot, const Range& shown, int offset,
                    const std::string& legend) {
    const Range range = sameIntervals(recordings, shown, slot);
    const int stride = valuesPerInterval(recordings.info(0).modeLetter);
    PlotSeries series{legend, seriesValues(recordings, slot, range, stride, offset),
                      forcedRuns(recordings, slot, range, stride, offset),
                      std::string(1, recordings.info(slot).unit())};
    series.axis = recordings.info(slot).unit() == recordings.info(0).unit() ? 0 : 1;
    const int missing = range.last + 1 - recordings.info(slot).count;
    if (missing > 0)
        series.present = std::max((range.entries() - missing + stride - 1 - offset) / stride, 0);
    return series;
}

// What the name of a file says of its phase, else what its notes say.
Phase phaseOf(const Recordings& recordings, int slot) {
    const Phase named = phaseIn(fileNameOf(recordings.info(slot).path));
    std::string notes;
    for (const std::string& note : recordings.gNotes.at(static_cast<std::size_t>(slot)))
        notes += note + " ";
    return named == Phase::none ? phaseIn(notes) : named;
}

// A phase colours one line: two of a colour could not be told apart.
void setPhases(const Recordings& recordings, std::vector<PlotSeries>& all) {
    std::array<bool, 4> taken = {true};
    for (std::size_t slot = 0; slot < all.size(); ++slot) {
        const Phase phase = phaseOf(recordings, static_cast<int>(slot));
        if (!std::exchange(taken.at(static_cast<std::size_t>(phase)), true))
            all[slot].phase = phase;
    }
}

std::vector<PlotSeries> allSeries(const Recordings& recordings, const PlotRequest& request) {
    std::vector<PlotSeries> all;
    const bool triples = isMinMaxAvg(recordings.info(0).modeLetter);
    if (triples && recordings.openCount() == 1) {
        for (std::size_t i = 0; i < statisticLegends.size(); ++i)
            all.push_back(seriesOf(recordings, 0, request.range, static_cast<int>(i), statisticLegends[i]));
        return all;
    }
    const int offset = triples ? static_cast<int>(request.statistic) - 1 : 0;
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        all.push_back(
            seriesOf(recordings, slot, request.range, offset, fileNameOf(recordings.info(slot).path)));
    setPhases(recordings, all);
    return all;
}

// The line above the title block: the file, or which statistic is shown of several.
std::string firstLine(const Recordings& recordings, const PlotRequest& request) {
    const FileFacts& info = recordings.info(0);
    if (!isMinMaxAvg(info.modeLetter))
        return {};
    if (recordings.openCount() > 1)
        return std::string(statisticTitles.at(static_cast<std::size_t>(request.statistic) - 1)) + "\r\n";
    return request.selected ? std::string() : "File: " + info.path + "\r\n";
}

const char* titleOf(char unit) {
    return unit == 'V' ? "VOLTS" : "AMPS";
}

// The unit of a file that is not that of the first; 0 when there is none.
char otherUnit(const Recordings& recordings) {
    const char first = recordings.info(0).unit();
    for (int slot = 1; slot < recordings.openCount(); ++slot)
        if (recordings.info(slot).unit() != first)
            return recordings.info(slot).unit();
    return 0;
}

UnitAxis axisOf(Plot& plot, const Recordings& recordings, const PlotRequest& request, char unit, int index) {
    const Extremes extremes = extremesOf(recordings, request.range, unit);
    Plot alone;
    scaleAxis(alone, extremes.smallest, extremes.largest);
    UnitAxis axis{titleOf(unit), alone.yMin, alone.yMax};
    const AxisUnit chosen = axisUnitOf(unit);
    applyChoice(plot, axis, index, chosen, request.axes.at(static_cast<std::size_t>(chosen)));
    return axis;
}

// Amperes and volts have an axis each; the plot's own ends then span the readings of both.
void setAxes(Plot& plot, const Recordings& recordings, const PlotRequest& request) {
    const char unit = recordings.info(0).unit();
    const char other = otherUnit(recordings);
    const UnitAxis first = axisOf(plot, recordings, request, unit, 0);
    plot.yTitle = first.title;
    if (other == 0) {
        plot.yMin = first.min;
        plot.yMax = first.max;
        return;
    }
    plot.axes = {first, axisOf(plot, recordings, request, other, 1)};
    plot.yTitle += ", " + plot.axes[1].title;
    const Extremes all = extremesOf(recordings, request.range);
    scaleAxis(plot, all.smallest, all.largest);
}

void applyUserScale(Plot& plot, const PlotRequest& request) {
    if (!request.yMinimum)
        return;
    plot.yMin = *request.yMinimum;
    // An axis needs some height to be drawn.
    if (plot.yMax <= plot.yMin)
        plot.yMax = plot.yMin + 10;
    if (plot.axes.empty())
        return;
    UnitAxis& first = plot.axes.front();
    first = {first.title, plot.yMin, first.max > plot.yMin ? first.max : plot.yMin + 10};
}

} // namespace

Plot DisplPlot(const Recordings& recordings, const PlotRequest& request, const Clock& clock) {
    if (recordings.openCount() == 0)
        throw fault::subscript();
    const FileFacts& info = recordings.info(0);
    Plot plot;
    plot.firstEntry = request.range.first;
    plot.entriesPerPoint = valuesPerInterval(info.modeLetter);
    plot.points = request.range.entries() / plot.entriesPerPoint;
    plot.series = allSeries(recordings, request);
    plot.title = firstLine(recordings, request) + titleBlock(recordings, request.selected, clock);
    plot.displaying = openNames(recordings);
    plot.remark = togetherRemark(recordings);
    labelAxis(plot, info);

    const Extremes extremes = extremesOf(recordings, request.range);
    setAxes(plot, recordings, request);
    applyUserScale(plot, request);
    plot.extremeMin = extremes.smallest;
    plot.extremeMax = extremes.largest;
    return plot;
}

bool needsStatistic(const Recordings& recordings) {
    return recordings.openCount() > 1 && isMinMaxAvg(recordings.info(0).modeLetter);
}

ReadOut readOut(const Recordings& recordings, const Plot& plot, int point, int series) {
    const auto readings = pointReadings(plot, point);
    if (!recordings.isOpen(0) || series < 0 || series >= static_cast<int>(readings.size()))
        return {};
    const int entry = plot.firstEntry + plot.entriesPerPoint * point;
    return {screenTime(timeOf(recordings.info(0), entry)), readings[static_cast<std::size_t>(series)].value};
}

} // namespace tally
