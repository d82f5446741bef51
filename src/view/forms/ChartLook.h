// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>

#include <array>

class QPalette;

namespace tally {

// Colours and letters of a chart.
struct ChartLook {
    QColor paper;
    QColor text;
    QColor frame;
    QColor grid;
    std::array<QColor, 4> lines; // told apart by the usual forms of colour blindness, too
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
};

} // namespace tally
