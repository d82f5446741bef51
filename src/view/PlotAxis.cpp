// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotAxis.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/Range.h"

#include <algorithm>

namespace tally {

std::string axisLabel(const Plot& plot, const FileFacts& info, int point) {
    const ReadingTime time = timeOf(info, plot.firstEntry + plot.entriesPerPoint * point);
    // Minutes of an hour are whole intervals: moving each time back is moving the first one back.
    return formatTime(time - toCivil(time).minute % modeRow(info.modeLetter).minutes, "%b %d %H:%M");
}

void labelAxis(Plot& plot, const FileFacts& info) {
    plot.labelStep = std::max(plot.points / 8, 1);
    int point = 0;
    for (std::string& label : plot.labels) {
        label = axisLabel(plot, info, point);
        point += plot.labelStep;
    }
}

void scaleAxis(Plot& plot, std::int16_t smallest, std::int16_t largest) {
    plot.yMin = Int(smallest / 10.0 * 0.9);
    plot.yMax = std::max(largest / 10.0 * 1.1, 10.0);
}

double onFirstAxis(const Plot& plot, double value, int axis) {
    if (axis == 0 || plot.axes.size() < 2)
        return value;
    const UnitAxis& left = plot.axes[0];
    const UnitAxis& right = plot.axes[1];
    return left.min + (value - right.min) / (right.max - right.min) * (left.max - left.min);
}

double onSecondAxis(const Plot& plot, double value) {
    const UnitAxis& left = plot.axes.at(0);
    const UnitAxis& right = plot.axes.at(1);
    return right.min + (value - left.min) / (left.max - left.min) * (right.max - right.min);
}

} // namespace tally
