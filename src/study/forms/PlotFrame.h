// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/forms/ChartLook.h"

#include <QPainter>
#include <QRectF>
#include <QString>

#include <utility>
#include <vector>

namespace tally::study {

// Values of an axis that are written on it, about `wanted` of them, at round numbers.
std::vector<double> roundTicks(double from, double to, int wanted);

// The box of a plot with its title, its y axis and what maps values onto it. x and y are values of any unit.
struct PlotFrame {
    QRectF box; // where the curves are drawn
    double xFrom = 0;
    double xTo = 1;
    double yFrom = 0;
    double yTo = 1;

    double x(double value) const { return box.left() + (value - xFrom) / (xTo - xFrom) * box.width(); }
    double y(double value) const { return box.bottom() - (value - yFrom) / (yTo - yFrom) * box.height(); }
    double valueAt(double pixel) const { return xFrom + (pixel - box.left()) / box.width() * (xTo - xFrom); }

    // Grid, frame and the numbers of the y axis; the title above, the y unit left of it.
    void paint(QPainter& painter, const ChartLook& look, const QString& title, const QString& unit) const;
    // A text under the x axis.
    void label(QPainter& painter, const ChartLook& look, double value, const QString& text) const;
};

// Room for a plot in a place of a page: title above, y numbers left, x labels below.
QRectF boxIn(const QRectF& place, const ChartLook& look);

// The ends of a y axis that shows these values with some room; from 0 on where they come near it.
std::pair<double, double> axisOver(double minimum, double maximum);

// How many points of an axis of so many lie from one label to the next, for labels as wide as a sample.
std::size_t labelStep(const ChartLook& look, const PlotFrame& frame, std::size_t points,
                      const QString& sample);

// A legend in the right upper corner: names with the colours of their lines.
void paintLegend(QPainter& painter, const ChartLook& look, const QRectF& place,
                 const std::vector<std::pair<QString, QColor>>& names);

} // namespace tally::study
