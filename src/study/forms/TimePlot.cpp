// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/TimePlot.h"

#include "study/Report.h"

#include <algorithm>
#include <cmath>

namespace tally::study {

PlotFrame TimePlot::frameIn(const QRectF& place, const ChartLook& look, double minimum,
                            double maximum) const {
    const auto [from, to] = axisOver(minimum, maximum);
    const QRectF box = boxIn(place, look);
    box_ = box.translated(-place.topLeft());
    return {box, 0, std::max(double(axis_.points) - 1, 1.0), from, to};
}

void TimePlot::paintTimes(QPainter& painter, const ChartLook& look, const PlotFrame& frame) const {
    const std::size_t step = labelStep(look, frame, axis_.points, QStringLiteral("0000-00-00 00:00"));
    for (std::size_t point = step / 2; point < axis_.points; point += step)
        frame.label(painter, look, double(point), words(timeText(axis_.at(point))));
}

std::optional<std::size_t> TimePlot::pointAt(const QRectF& place, QPointF at) const {
    const QRectF box = box_.translated(place.topLeft());
    if (!box.contains(at))
        return {};
    const double part = (at.x() - box.left()) / box.width();
    return std::size_t(std::lround(part * (double(axis_.points) - 1)));
}

std::optional<ReadingTime> TimePlot::timeAt(const QRectF& place, QPointF at) const {
    const auto point = pointAt(place, at);
    return point ? std::optional(axis_.at(*point)) : std::nullopt;
}

QString TimePlot::tip(const QRectF& place, QPointF at) const {
    const auto point = pointAt(place, at);
    if (!point)
        return {};
    return words(timeText(axis_.at(*point))) + QStringLiteral("  ") + valueText(*point);
}

} // namespace tally::study
