// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PlotAxis.h"

#include "core/ModeTable.h"
#include "core/Numbers.h"
#include "view/ShownRange.h"

#include <algorithm>

namespace tally {

void labelAxis(Plot& plot, const FileFacts& info) {
    const int interval = modeRow(info.modeLetter).minutes;
    ReadingTime start = intervalTime(info, plot.firstEntry);
    start = start - toCivil(start).minute % interval;
    plot.labelStep = std::max(plot.points / 8, 1);
    for (std::size_t i = 0; i < plot.labels.size(); ++i)
        plot.labels[i] =
            formatTime(start + static_cast<std::int64_t>(i) * plot.labelStep * interval, "%b %d %H:%M");
}

void scaleAxis(Plot& plot, std::int16_t smallest, std::int16_t largest) {
    plot.yMin = Int(smallest / 10.0 * 0.9);
    plot.yMax = std::max(largest / 10.0 * 1.1, 10.0);
}

} // namespace tally
