// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotModel.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/FilesTogether.h"
#include "view/PlotAxis.h"
#include "view/PlotSeries.h"
#include "view/PlotTitle.h"
#include "view/Range.h"

#include <array>

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
    return {legend, seriesValues(recordings, slot, range, stride, offset),
            forcedRuns(recordings, slot, range, stride, offset),
            std::string(1, recordings.info(slot).unit())};
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

// Files of both units are drawn on one axis.
std::string axisTitle(const Recordings& recordings) {
    const auto title = [&](int slot) { return recordings.info(slot).unit() == 'V' ? "VOLTS" : "AMPS"; };
    const std::string first = title(0);
    for (int slot = 1; slot < recordings.openCount(); ++slot)
        if (title(slot) != first)
            return first + ", " + title(slot);
    return first;
}

void applyUserScale(Plot& plot, const PlotRequest& request) {
    if (!request.yMinimum)
        return;
    plot.yMin = *request.yMinimum;
    // An axis needs some height to be drawn.
    if (plot.yMax <= plot.yMin)
        plot.yMax = plot.yMin + 10;
}

} // namespace

Plot DisplPlot(const Recordings& recordings, const PlotRequest& request, const Clock& clock) {
    if (recordings.openCount() == 0)
        throw fault::subscript();
    const FileFacts& info = recordings.info(0);
    Plot plot;
    plot.yTitle = axisTitle(recordings);
    plot.firstEntry = request.range.first;
    plot.entriesPerPoint = valuesPerInterval(info.modeLetter);
    plot.points = request.range.entries() / plot.entriesPerPoint;
    plot.series = allSeries(recordings, request);
    plot.title = firstLine(recordings, request) + titleBlock(recordings, request.selected, clock);
    plot.displaying = openNames(recordings);
    plot.remark = togetherRemark(recordings);
    labelAxis(plot, info);

    const Extremes extremes = extremesOf(recordings, request.range);
    scaleAxis(plot, extremes.smallest, extremes.largest);
    applyUserScale(plot, request);
    plot.extremeMin = extremes.smallest;
    plot.extremeMax = extremes.largest;
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
    const PlotSeries& line = plot.series[static_cast<std::size_t>(series)];
    return {screenTime(timeOf(recordings.info(0), entry)),
            Format(line.values[static_cast<std::size_t>(point)], "##0.0") + " " + line.unit};
}

} // namespace tally
