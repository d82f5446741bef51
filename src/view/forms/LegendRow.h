// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"
#include "view/forms/ChartLook.h"
#include "view/forms/SeriesPlottable.h"

#include <QRect>
#include <QString>

#include <vector>

class QPainter;

namespace tally {

// The line of signs and names above the frame: one entry per named series, one for forced readings where
// there are any.
class LegendRow {
public:
    void setPlot(const Plot& plot);
    // Finds a place for every entry within the width; gives the height that it takes, 0 without entries.
    int layOut(int width, const QFont& font);
    void paint(QPainter& painter, const QPoint& corner, const ChartLook& look, const LinesShown& lines) const;
    // The series whose entry stands at a place, counted from the row's corner; -1 for none.
    int seriesAt(const QPointF& place) const;

private:
    struct Entry {
        int series; // -1 for forced readings
        QString text;
        Phase phase;
        QRect place;
    };

    std::vector<Entry> entries_;
    bool signs_ = false;
};

} // namespace tally
