// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Power.h"

#include "core/Fault.h"
#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/FilesTogether.h"
#include "view/PlotAxis.h"
#include "view/PlotSeries.h"
#include "view/PlotTitle.h"
#include "view/PowerValues.h"

#include <cmath>
#include <utility>

namespace tally {

namespace {

constexpr double maximumKilowattHours = 1000000;
constexpr std::string_view energyPattern = "###,###,##0";

std::string energyText(double kilowattHours) {
    if (kilowattHours > maximumKilowattHours)
        return Format(kilowattHours / 1000, energyPattern) + " MWHR";
    return Format(kilowattHours, energyPattern) + " KWHR";
}

// Kilowatts of a current, in double precision and with the factors as they were entered: a whole number stays
// one. `percent` is the room above or below.
double axisEnd(double tenths, int percent, const PowerBasis& basis) {
    const double factor = Val(plain(basis.factor)); // 0.9, not the 0.89999998 that is nearest to it
    const double value = tenths * percent * basis.volts() * factor / 1e6;
    // What the last binary places take from a whole number.
    const double whole = std::round(value);
    return std::fabs(value - whole) <= std::fabs(whole) * 1e-12 ? whole : value;
}

std::vector<std::pair<int, int>> forcedPoints(const Recordings& recordings, const Range& range) {
    std::vector<std::pair<int, int>> runs;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const auto more = forcedRuns(recordings, slot, range, 1, 0);
        runs.insert(runs.end(), more.begin(), more.end());
    }
    return mergedRuns(std::move(runs));
}

// With three files the top is the plain sum, not the mean times 1.732: the axis reaches above the plot.
void scalePowerAxis(Plot& plot, const Recordings& recordings, const Power& power) {
    const bool three = recordings.openCount() == Recordings::slotCount;
    const double smallest = three ? power.smallestSum * 1.732 / 3 : power.smallestSum;
    plot.yMin = Int(axisEnd(smallest, 90, power.basis));
    plot.yMax = axisEnd(power.extremeMax, 110, power.basis);
}

void applyPowerChoice(Plot& plot, const PlotRequest& request) {
    UnitAxis axis{plot.yTitle, plot.yMin, plot.yMax};
    const AxisUnit unit = AxisUnit::kilowatts;
    applyChoice(plot, axis, 0, unit, request.axes.at(static_cast<std::size_t>(unit)));
    plot.yMin = axis.min;
    plot.yMax = axis.max;
}

} // namespace

Expected<void> checkPower(const Recordings& recordings) {
    Expected<void> result;
    for (int slot = 0; slot < recordings.openCount(); ++slot) {
        const FileFacts& info = recordings.info(slot);
        if (info.unit() != 'A')
            result = refuse(std::string(powerNotAmps));
        if (isMinMaxAvg(info.modeLetter))
            result = refuse(std::string(powerNotAverage));
    }
    return result;
}

Expected<Power> powerOf(const Recordings& recordings, const Range& range, const PowerBasis& basis) {
    if (recordings.openCount() == 0)
        throw fault::subscript();
    if (const auto fit = checkPower(recordings); !fit)
        return tl::make_unexpected(fit.error());
    PowerValues values = powerValues(recordings, range, basis.scale());
    Power power;
    power.range = range;
    power.basis = basis;
    power.extremeMin = toInt16(static_cast<double>(values.smallest));
    power.extremeMax = toInt16(static_cast<double>(values.largest));
    power.smallestSum = values.smallestSum;
    power.kilowatts = std::move(values.kilowatts);
    power.energyText = energyText(values.sumAfterFirst * modeRow(recordings.info(0).modeLetter).minutes / 60);
    return power;
}

std::string energyOf(const Recordings& recordings, const Range& range, const PowerBasis& basis) {
    try {
        const auto power = powerOf(recordings, range, basis);
        return power ? power->energyText : std::string();
    } catch (const Fault&) {
        // A summary says what it can; the power views say what overflows.
        return {};
    }
}

std::string powerTitle(const Recordings& recordings, const PowerBasis& basis) {
    const PowerScale scale = basis.scale();
    std::string title;
    for (int slot = 0; slot < recordings.openCount(); ++slot)
        title += recordings.info(slot).path + "   ";
    if (recordings.openCount() > 1)
        title += "  Combined;";
    return title + "   Nominal Line Voltage " + plain(scale.kilovolts) + " KV  " +
           "Power Factor: " + plain(scale.factor);
}

std::string powerSource(const Recordings& recordings, const Power& power) {
    const FileFacts& info = recordings.info(0);
    const PowerScale scale = power.basis.scale();
    return "Power of " + openNames(recordings) + " at " + plain(scale.kilovolts) + " KV, power factor " +
           plain(scale.factor) + ", " + screenTime(timeOf(info, power.range.first)) + " to " +
           screenTime(timeOf(info, power.range.last));
}

Plot DisplPlotPwr(const Recordings& recordings, const PlotRequest& request, const Power& power,
                  const Clock& clock) {
    Plot plot;
    plot.yTitle = "KW";
    plot.firstEntry = power.range.first;
    plot.points = power.range.entries();
    plot.series.push_back({"KW", power.kilowatts, forcedPoints(recordings, power.range), "KW"});
    plot.title =
        powerTitle(recordings, power.basis) + "\r\n" + titleBlock(recordings, request.selected, clock);
    plot.displaying = openNames(recordings);
    plot.remark = togetherRemark(recordings);
    labelAxis(plot, recordings.info(0));
    scalePowerAxis(plot, recordings, power);
    applyPowerChoice(plot, request);
    plot.extremeMin = power.extremeMin;
    plot.extremeMax = power.extremeMax;
    return plot;
}

} // namespace tally
