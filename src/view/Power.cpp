// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Power.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/PlotAxis.h"
#include "view/PlotSeries.h"
#include "view/PlotTitle.h"
#include "view/PowerValues.h"
#include "view/ShownRange.h"
#include "view/Span.h"
#include "view/ViewRollback.h"

#include <utility>

namespace tally {

namespace {

constexpr double mostKilowattHours = 1000000;
constexpr std::string_view energyPattern = "###,###,##0";

std::string energyText(double kilowattHours) {
    if (kilowattHours > mostKilowattHours)
        return Format(kilowattHours / 1000, energyPattern) + " MWHR";
    return Format(kilowattHours, energyPattern) + " KWHR";
}

PowerScale scaleOf(const Recordings& recordings, double volts) {
    return {static_cast<float>(volts / 1000), powerFactorOf(recordings)};
}

std::vector<std::pair<int, int>> forcedPoints(const Recordings& recordings, const ShownRange& range) {
    std::vector<std::pair<int, int>> runs;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const auto more = forcedRuns(recordings, slot, range, 1, 0);
        runs.insert(runs.end(), more.begin(), more.end());
    }
    return mergedRuns(std::move(runs));
}

std::string sourceText(const Recordings& recordings, const ShownRange& range, double volts) {
    const FileFacts& info = recordings.info(0);
    const PowerScale scale = scaleOf(recordings, volts);
    return "Power of " + openNames(recordings) + " at " + plain(scale.kilovolts) + " KV, power factor " +
           plain(scale.factor) + ", " + screenTime(timeOf(info, range.first)) + " to " +
           screenTime(timeOf(info, range.last));
}

Plot powerPlot(const Recordings& recordings, const DisplayState& state, const ShownRange& range, double volts,
               const PowerValues& values, const Clock& clock) {
    const FileFacts& info = recordings.info(0);
    const PowerScale scale = scaleOf(recordings, volts);
    Plot plot;
    plot.yTitle = "KW";
    plot.firstEntry = range.first;
    plot.points = range.entries();
    plot.series.push_back({"KW", values.kilowatts, forcedPoints(recordings, range)});
    plot.title = powerTitle(recordings, volts) + "\r\n" + titleBlock(recordings, state, clock);
    plot.displaying = openNames(recordings);
    plot.remark = shorterFiles(recordings);
    labelAxis(plot, info);
    // With three files the top is the plain sum, not the mean times 1.732: the axis reaches above the plot.
    plot.yMin = Int(static_cast<double>(values.smallest / 10.0F * 0.9F * scale.kilovolts * scale.factor));
    plot.yMax = static_cast<double>(values.largest / 10.0F * 1.1F * scale.kilovolts * scale.factor);
    return plot;
}

} // namespace

PowerRefusal checkPower(const Recordings& recordings) {
    PowerRefusal refusal = PowerRefusal::none;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        if (info.unit() != 'A')
            refusal = PowerRefusal::notAmps;
        if (isMinMaxAvg(info.modeLetter))
            refusal = PowerRefusal::notAverage;
    }
    return refusal;
}

std::string_view refusalText(PowerRefusal refusal) {
    switch (refusal) {
    case PowerRefusal::notAmps:
        return "Files must all be amps for power to plot";
    case PowerRefusal::notAverage:
        return "Files must be average mode for power to plot";
    case PowerRefusal::none:
        break;
    }
    return {};
}

std::string powerTitle(const Recordings& recordings, double volts) {
    const PowerScale scale = scaleOf(recordings, volts);
    std::string title;
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        title += recordings.info(slot).path + "   ";
    if (recordings.openCount() > 1)
        title += "  Combined;";
    return title + "   Nominal Line Voltage " + plain(scale.kilovolts) + " KV  " +
           "Power Factor: " + plain(scale.factor);
}

void startPower(Recordings& recordings, DisplayState& state) {
    startPlot(recordings, state);
    state.userScale = false;
    state.yMinimum = 0;
    state.powerView = true;
}

PowerRefusal DisplPlotPwr(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                          Plot& out) {
    if (recordings.openCount() == 0)
        throw fault::subscript();
    const PowerRefusal refusal = checkPower(recordings);
    if (refusal != PowerRefusal::none)
        return refusal;
    // Everything that can fail comes first.
    const ShownRange range = rangeToDraw(recordings, state);
    PowerValues values = powerValues(recordings, range, scaleOf(recordings, volts));
    const std::int16_t smallest = toInt16(static_cast<double>(values.smallest));
    const std::int16_t largest = toInt16(static_cast<double>(values.largest));
    Plot plot = powerPlot(recordings, state, range, volts, values, clock);

    settleRange(recordings, state, range);
    state.power = std::move(values.kilowatts);
    state.powerFirst = range.first;
    state.powerExtremeMin = state.extremeMin = smallest;
    state.powerExtremeMax = state.extremeMax = largest;
    state.energyText = energyText(values.sumAfterFirst * modeRow(recordings.info(0).modeLetter).minutes / 60);
    state.powerSource = sourceText(recordings, range, volts);
    state.powerDrawn = true;
    state.powerView = true;
    state.viewKind = ViewKind::powerPlot;
    clearOneShots(state);
    recordings.powerFactor = powerFactorOf(recordings);
    out = std::move(plot);
    return refusal;
}

PowerRefusal viewPower(Recordings& recordings, DisplayState& state, double volts, const Clock& clock,
                       Plot& out) {
    ViewRollback rollback(recordings, state);
    startPower(recordings, state);
    const PowerRefusal refusal = DisplPlotPwr(recordings, state, volts, clock, out);
    if (refusal == PowerRefusal::none)
        rollback.keep();
    return refusal;
}

} // namespace tally
