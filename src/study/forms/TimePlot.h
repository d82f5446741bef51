// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "study/Axis.h"
#include "study/forms/Block.h"
#include "study/forms/PlotFrame.h"

namespace tally::study {

// A plot over the time of a study: x is the point of the axis. A place on it stands for the time of its
// point.
class TimePlot : public Block {
public:
    explicit TimePlot(const Axis& axis) : axis_(axis) {}

    double height(double) const override { return 210; }
    std::optional<ReadingTime> timeAt(const QRectF& place, QPointF at) const override;
    QString tip(const QRectF& place, QPointF at) const override;

protected:
    const Axis& axis() const { return axis_; }
    // The frame in a place, its y axis over these values.
    PlotFrame frameIn(const QRectF& place, const ChartLook& look, double minimum, double maximum) const;
    void paintTimes(QPainter& painter, const ChartLook& look, const PlotFrame& frame) const;
    // What the tip says of a point.
    virtual QString valueText(std::size_t point) const = 0;

private:
    std::optional<std::size_t> pointAt(const QRectF& place, QPointF at) const;

    const Axis& axis_;
    mutable QRectF box_; // where the plot was drawn last, from the left upper corner of its place
};

} // namespace tally::study
