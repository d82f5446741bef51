// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "view/Plot.h"
#include "view/forms/ChartLook.h"
#include "view/forms/ChartNote.h"
#include "view/forms/LabelPlan.h"
#include "view/forms/LegendRow.h"
#include "view/forms/SeriesPlottable.h"
#include "view/forms/TitleBlock.h"

#include <QRectF>
#include <QSize>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QCPPainter;
class QCustomPlot;

namespace tally {

inline constexpr int sceneMargin = 10; // pixels around the picture

// A point of one series.
struct PlotHit {
    int point = 0;
    int series = 0;
};

// A plot as a picture: title block, legend, frame, axes, lines, notes. The same for the screen, files and
// paper.
class PlotScene {
public:
    PlotScene();
    ~PlotScene();

    void setPlot(const Plot& plot);
    void clear();
    const Plot& plot() const { return plot_; }
    const ChartLook& look() const { return look_; }
    void setLook(const ChartLook& look);
    void setTimeOf(std::function<std::string(int point)> timeOf) { timeOf_ = std::move(timeOf); }
    const std::function<std::string(int point)>& timeOf() const { return timeOf_; }
    // Shows a part of the plot; nothing is the whole.
    void setSight(const std::optional<Sight>& sight);

    std::vector<ChartNote> notes;
    int selectedNote = -1;
    std::optional<std::pair<int, int>> span;
    LinesShown lines;

    // The part of the plot in sight. Zooming stops at a few points and at the whole.
    void resetView();
    void setView(std::pair<double, double> across, std::pair<double, double> up);
    void zoomAcross(double factor, double around);
    void zoomUp(double factor, double around);
    void pan(double across, double up);
    // Moves the picture as little as it takes to have a point in sight.
    void reveal(int point);
    std::pair<double, double> across() const { return across_; }
    std::pair<double, double> up() const { return up_; }
    bool isWhole() const;

    // Works out where everything stands in a picture of this size.
    void layOut(QSize size);
    // Paints the picture at (0, 0); vectors for paper and for files of lines.
    void paint(QCPPainter& painter, QSize size, bool vectors);

    // As laid out last.
    QRectF frame() const { return frame_; }
    double pointAtPixel(double x) const;
    double valueAtPixel(double y) const;
    // Where a point of a series stands.
    QPointF placeOf(int point, int series) const;
    // The reading that is seen nearest to a place in the frame, of all lines shown; nothing off the data.
    std::optional<PlotHit> hit(const QPointF& place) const;
    // The series whose legend entry stands at a place; -1 for none.
    int legendAt(const QPointF& place) const;

private:
    std::pair<double, double> wholeAcross() const;
    std::pair<double, double> wholeUp() const;
    void applyLook();
    std::vector<std::pair<int, QString>> labels() const;
    LabelPlan planLabels(const std::vector<std::pair<int, QString>>& labels) const;
    void setLabels(std::vector<std::pair<int, QString>> labels, const LabelPlan& plan);
    void setUpAxes();
    void layOutAxes();

    std::unique_ptr<QCustomPlot> plotter_;
    SeriesPlottable* series_;
    Plot plot_;
    ChartLook look_;
    TitleBlock title_;
    LegendRow legend_;
    std::function<std::string(int)> timeOf_;
    std::pair<double, double> across_{0, 8};
    std::pair<double, double> up_{0, 10};
    int legendTop_ = 0;
    QRectF frame_;
};

} // namespace tally
