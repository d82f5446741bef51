// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace tally::testing {

// A plot of waves with labels, a title block and the axis 0 to 150.
inline Plot samplePlot(int points, int series = 1) {
    Plot plot;
    plot.title =
        "        File Data:   Max  123.4A  Min  12A\r\n\r\nMode:  Average;     Stop;    15 min interval      "
        "\r\nDate printed   Nov-21-26\r\nLocation: North\r\nCircuit:     4711\r\nName:     Miller\r\n"
        "Other:      none";
    plot.displaying = "Data Plot";
    plot.yTitle = "AMPS";
    plot.yMin = 0;
    plot.yMax = 150;
    plot.points = points;
    plot.labelStep = std::max(points / 8, 1);
    for (int i = 0; i < 9; ++i)
        plot.labels[std::size_t(i)] = "MAY 0" + std::to_string(i + 1) + " 12:00";
    for (int index = 0; index < series; ++index) {
        PlotSeries line;
        line.legend = series > 1 ? "FILE" + std::to_string(index + 1) + ".DAT" : "";
        for (int k = 0; k < points; ++k)
            line.values.push_back(float(50 + 20 * index + 10 * std::sin(k * 0.01 + index)));
        plot.series.push_back(std::move(line));
    }
    return plot;
}

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF place,
                      Qt::MouseButton button = Qt::LeftButton,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const bool move = type == QEvent::MouseMove;
    const bool up = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, widget.mapToGlobal(place), move ? Qt::NoButton : button,
                      up ? Qt::MouseButtons(Qt::NoButton) : Qt::MouseButtons(button), modifiers);
    QApplication::sendEvent(&widget, &event);
}

inline void drag(QWidget& widget, QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    sendMouse(widget, QEvent::MouseButtonPress, from, button, modifiers);
    sendMouse(widget, QEvent::MouseMove, (from + to) / 2, button, modifiers);
    sendMouse(widget, QEvent::MouseMove, to, button, modifiers);
    sendMouse(widget, QEvent::MouseButtonRelease, to, button, modifiers);
}

} // namespace tally::testing
