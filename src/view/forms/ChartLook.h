// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Phase.h"

#include <QColor>
#include <QFont>
#include <QList>

#include <array>

class QPalette;

namespace tally {

// Colours and letters of a chart.
struct ChartLook {
    QColor paper;
    QColor text;
    QColor frame;
    QColor grid;
    std::array<QColor, 4> lines;  // told apart by the usual forms of colour blindness, too
    std::array<QColor, 3> phases; // red, white, blue: of different lightness, so that grey tells them apart
    QColor limit;
    QColor forced;
    QColor span;
    QColor note;
    QColor noteEdge;
    QFont font;

    // White paper, letters of the given height in pixels.
    static ChartLook onPaper(int pixels = 13);
    // Follows a light or dark palette.
    static ChartLook onScreen(const QPalette& palette, int pixels);

    QColor line(int series) const { return lines[std::size_t(series) % lines.size()]; }
    // The colour of a line: of its phase, else by its place among all.
    QColor line(Phase phase, int index) const;
    // The dashes of a phase in widths of the pen; empty for an unbroken line.
    static QList<qreal> dashes(Phase phase);
};

} // namespace tally
