// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"
#include "view/forms/ChartLook.h"
#include "view/forms/ChartNote.h"
#include "view/forms/Columns.h"
#include "view/forms/QcpInclude.h"

#include <optional>
#include <utility>
#include <vector>

namespace tally {

// Draws all series of a plot and the shading of the marked span. A long series is drawn as one bar from
// smallest to largest value for each column of pixels: nothing is skipped, and the cost follows the width of
// the picture.
class SeriesPlottable : public QCPAbstractPlottable {
public:
    SeriesPlottable(QCPAxis* x, QCPAxis* y);

    const Plot* plot = nullptr;
    ChartLook look;
    std::optional<std::pair<int, int>> span;
    LinesShown lines;

    // The sign that tells a series from others without its colour, about (2 * 4) pixels wide.
    static void drawSign(QPainter& painter, const QPointF& centre, int series, const QColor& colour,
                         const QColor& paper);
    // The height of a value in pixels; beyond the frame by a little at most: painters do not like huge
    // coordinates.
    double pixelOf(float value, int axis) const;
    Along along() const;

    double selectTest(const QPointF&, bool, QVariant*) const override { return -1; }
    QCPRange getKeyRange(bool& found, QCP::SignDomain) const override;
    QCPRange getValueRange(bool& found, QCP::SignDomain, const QCPRange&) const override;

protected:
    void draw(QCPPainter* painter) override;
    void drawLegendIcon(QCPPainter*, const QRectF&) const override {}

private:
    struct Run {
        int first;
        int last;
        QColor colour;
        double width;
        QList<qreal> dashes = {};
    };

    void drawSpan(QCPPainter& painter) const;
    void drawSeries(QCPPainter& painter, int index) const;
    void drawLimits(QCPPainter& painter) const;
    // A disc for what a line would not show: a lone point; whole at the edge of the frame, too.
    void drawMark(QCPPainter& painter, QPointF centre, const QColor& colour, double radius) const;
    void drawRun(QCPPainter& painter, const PlotSeries& series, const Run& run) const;
    void drawBars(QCPPainter& painter, const PlotSeries& series, const Run& run, Along along) const;
    void drawLine(QCPPainter& painter, const PlotSeries& series, const Run& run, Along along) const;
    void drawSigns(QCPPainter& painter, int index) const;
    std::pair<int, int> inSight(const PlotSeries& series) const;
};

} // namespace tally
