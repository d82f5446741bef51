// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/forms/PlotFrame.h"

#include <QPolygonF>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace tally::study {

// A line over many points: for each column of pixels its lowest and its highest value, so that a line of
// 43,000 points takes as long as one of a thousand and no peak is lost. `valueAt(point)` gives an optional
// value; the line breaks where there is none. Point i stands at x = i.
template <typename ValueAt>
void paintColumns(QPainter& painter, const PlotFrame& frame, std::size_t points, ValueAt valueAt) {
    QPolygonF line;
    const auto flush = [&] {
        if (line.size() == 1)
            line.append(line.front() + QPointF(1, 0));
        painter.drawPolyline(line);
        line.clear();
    };
    const auto columns = std::max<std::size_t>(std::size_t(frame.box.width()), 1);
    for (std::size_t first = 0, column = 0; first < points; ++column) {
        const std::size_t end =
            std::max(first + 1, points > columns ? (column + 1) * points / columns : first + 1);
        double low = 0;
        double high = 0;
        std::size_t found = 0;
        for (std::size_t i = first; i < std::min(end, points); ++i) {
            const std::optional<double> value = valueAt(i);
            if (!value)
                continue;
            low = found == 0 ? *value : std::min(low, *value);
            high = found == 0 ? *value : std::max(high, *value);
            ++found;
        }
        const double x = frame.x(double(first));
        if (found == 0) {
            if (!line.isEmpty())
                flush();
        } else {
            line.append(QPointF(x, frame.y(low)));
            if (found > 1)
                line.append(QPointF(x, frame.y(high)));
        }
        first = end;
    }
    if (!line.isEmpty())
        flush();
}

} // namespace tally::study
