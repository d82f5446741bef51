// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/PlotScene.h"

#include "view/PlotAxis.h"
#include "view/forms/NotePaint.h"

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr int margin = sceneMargin;
constexpr int labelCount = 9;       // along the x axis
constexpr double fewestPoints = 4;  // that a zoomed picture spans
constexpr double deepestZoom = 1e4; // of the y axis
constexpr int minimumLetters = 10;  // pixels, where a small picture has a long title

// A range moved and cut so that it lies within the whole.
std::pair<double, double> within(std::pair<double, double> range, std::pair<double, double> whole) {
    const double length = std::min(range.second - range.first, whole.second - whole.first);
    const double first = std::clamp(range.first, whole.first, whole.second - length);
    return {first, first + length};
}

std::pair<double, double> zoomed(std::pair<double, double> range, double factor, double around,
                                 std::pair<double, double> whole, double minimum) {
    const double length = std::max((range.second - range.first) * factor, minimum);
    const double before = (around - range.first) / (range.second - range.first);
    const double first = around - before * length;
    return within({first, first + length}, whole);
}

} // namespace

PlotScene::PlotScene() : plotter_(std::make_unique<QCustomPlot>()), look_(ChartLook::onPaper()) {
    series_ = new SeriesPlottable(plotter_->xAxis, plotter_->yAxis); // the plotter owns it
    plotter_->setNotAntialiasedElements(QCP::aeAll);
    plotter_->setLocale(QLocale::c());
    plotter_->setBackground(QBrush(Qt::NoBrush));
    plotter_->xAxis->setSubTicks(false);
    plotter_->xAxis2->setTicks(false);
    plotter_->xAxis2->setTickLabels(false);
    for (QCPAxis* axis : {plotter_->xAxis2, plotter_->yAxis2}) // the other two sides of the frame
        axis->setVisible(true);
    for (QCPAxis* axis :
         {plotter_->xAxis, plotter_->yAxis, plotter_->yAxis2}) { // ticks outside hide no readings
        axis->setTickLength(0, 5);
        axis->setSubTickLength(0, 3);
        axis->setNumberFormat(QStringLiteral("g"));
        axis->setNumberPrecision(9);
    }
    setUpAxes();
    applyLook();
}

PlotScene::~PlotScene() = default;

void PlotScene::setPlot(const Plot& plot) {
    plot_ = plot;
    series_->plot = &plot_;
    title_.setText(QString::fromStdString(plot.title));
    legend_.setPlot(plot);
    lines = {};
    setUpAxes();
    resetView();
}

// The right side says numbers only where it has a scale of its own.
void PlotScene::setUpAxes() {
    const bool two = plot_.axes.size() > 1;
    plotter_->yAxis->setLabel(QString::fromStdString(two ? plot_.axes[0].title : plot_.yTitle));
    plotter_->yAxis2->setLabel(two ? QString::fromStdString(plot_.axes[1].title) : QString());
    plotter_->yAxis2->setTicks(two);
    plotter_->yAxis2->setTickLabels(two);
}

void PlotScene::clear() {
    setPlot({});
    series_->plot = nullptr;
    span.reset();
    notes.clear();
    selectedNote = -1;
}

void PlotScene::setLook(const ChartLook& look) {
    look_ = look;
    applyLook();
}

void PlotScene::applyLook() {
    series_->look = look_;
    for (QCPAxis* axis : {plotter_->xAxis, plotter_->yAxis, plotter_->xAxis2, plotter_->yAxis2}) {
        axis->setBasePen(QPen(look_.frame, 1));
        axis->setTickPen(QPen(look_.frame, 1));
        axis->setSubTickPen(QPen(look_.frame, 1));
        axis->setLabelColor(look_.text);
        axis->setTickLabelColor(look_.text);
        axis->setLabelFont(look_.font);
        axis->setTickLabelFont(look_.font);
        axis->grid()->setPen(QPen(look_.grid, 1));
        axis->grid()->setZeroLinePen(QPen(look_.grid, 1));
    }
    // The lowest number of the y axis reaches below the frame by half its height.
    plotter_->xAxis->setTickLabelPadding(std::max(5, QFontMetrics(look_.font).height() / 2));
}

std::pair<double, double> PlotScene::wholeAcross() const {
    // The nine labels are in sight also where there are fewer points.
    return {0, std::max({plot_.points - 1, (labelCount - 1) * plot_.labelStep, 1})};
}

std::pair<double, double> PlotScene::wholeUp() const {
    const bool two = plot_.axes.size() > 1;
    const double smallest = two ? plot_.axes[0].min : plot_.yMin;
    const double largest = two ? plot_.axes[0].max : plot_.yMax;
    const bool usable = std::isfinite(smallest) && std::isfinite(largest);
    if (!usable || std::abs(smallest) > 1e30 || std::abs(largest) > 1e30)
        return {0, 10};
    // A scale that begins above the readings is shown all the same.
    return smallest < largest ? std::pair(smallest, largest) : std::pair(smallest, smallest + 10);
}

void PlotScene::resetView() {
    across_ = wholeAcross();
    up_ = wholeUp();
}

void PlotScene::setView(std::pair<double, double> across, std::pair<double, double> up) {
    across_ = within(across, wholeAcross());
    up_ = within(up, wholeUp());
}

void PlotScene::zoomAcross(double factor, double around) {
    across_ = zoomed(across_, factor, around, wholeAcross(), fewestPoints);
}

void PlotScene::zoomUp(double factor, double around) {
    const auto whole = wholeUp();
    up_ = zoomed(up_, factor, around, whole, (whole.second - whole.first) / deepestZoom);
}

void PlotScene::pan(double across, double up) {
    const double right = across * (across_.second - across_.first);
    const double higher = up * (up_.second - up_.first);
    across_ = within({across_.first + right, across_.second + right}, wholeAcross());
    up_ = within({up_.first + higher, up_.second + higher}, wholeUp());
}

void PlotScene::setSight(const std::optional<Sight>& sight) {
    if (!sight)
        return resetView();
    timeOf_ = sight->timeOf;
    lines.hidden = sight->hidden;
    setView(sight->across, sight->up);
}

bool PlotScene::isWhole() const {
    return across_ == wholeAcross() && up_ == wholeUp();
}

std::vector<std::pair<int, QString>> PlotScene::labels() const {
    std::vector<std::pair<int, QString>> labels;
    if (across_ == wholeAcross() || !timeOf_) {
        for (int i = 0; i < labelCount; ++i)
            labels.emplace_back(i * plot_.labelStep, QString::fromStdString(plot_.labels[std::size_t(i)]));
        return labels;
    }
    const int step = std::max(int(std::ceil((across_.second - across_.first) / (labelCount - 1))), 1);
    const int last = std::min(int(across_.second), plot_.points - 1);
    for (int at = int(std::ceil(across_.first / step)) * step; at <= last; at += step)
        labels.emplace_back(at, QString::fromStdString(timeOf_(at)));
    return labels;
}

LabelPlan PlotScene::planLabels(const std::vector<std::pair<int, QString>>& labels) const {
    std::vector<QString> texts;
    for (const auto& label : labels)
        texts.push_back(label.second);
    const int apart = labels.size() > 1 ? labels[1].first - labels[0].first : 1;
    const double perPoint = plotter_->axisRect()->width() / (across_.second - across_.first);
    return planOf(texts, apart * perPoint, QFontMetrics(look_.font));
}

void PlotScene::setLabels(std::vector<std::pair<int, QString>> labels, const LabelPlan& plan) {
    QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    for (std::size_t i = 0; i < labels.size(); i += std::size_t(plan.every)) {
        auto& [point, text] = labels[i];
        if (plan.twoLines)
            breakLabel(text);
        if (!text.isEmpty())
            ticker->addTick(point, text);
    }
    plotter_->xAxis->setTicker(ticker);
    // Labels stand in the middle under their tick: the first and the last need room beside the frame.
    const int beside = plan.width / 2 + 4;
    plotter_->axisRect()->setMinimumMargins(QMargins(beside, 0, beside, 0));
}

// How the labels stand depends on the width of the frame, which depends on how they stand.
void PlotScene::layOutAxes() {
    const auto all = labels();
    for (int turn = 0; turn < 3; ++turn) {
        const LabelPlan plan = planLabels(all);
        setLabels(all, plan);
        for (const auto phase :
             {QCPLayoutElement::upPreparation, QCPLayoutElement::upMargins, QCPLayoutElement::upLayout})
            plotter_->plotLayout()->update(phase);
        if (planLabels(all) == plan)
            break;
    }
    const double fit = plotter_->axisRect()->height() / (1.7 * QFontMetrics(look_.font).height());
    for (QCPAxis* axis : {plotter_->yAxis, plotter_->yAxis2})
        axis->ticker()->setTickCount(std::clamp(int(fit), 1, 7));
}

void PlotScene::layOut(QSize size) {
    const int width = std::max(size.width() - 2 * margin, 1);
    const int height = title_.layOut(width, size.height() / 3, look_.font, minimumLetters);
    legendTop_ = margin + height + (height > 0 ? 4 : 0);
    const int legendHeight = legend_.layOut(width, look_.font);
    const int top = legendTop_ + legendHeight + (legendHeight > 0 ? 4 : 0);
    plotter_->xAxis->setRange(across_.first, across_.second);
    plotter_->yAxis->setRange(up_.first, up_.second);
    if (plot_.axes.size() > 1)
        plotter_->yAxis2->setRange(onSecondAxis(plot_, up_.first), onSecondAxis(plot_, up_.second));
    plotter_->setViewport(QRect(QPoint(0, 0), size));
    plotter_->plotLayout()->setMargins(QMargins(margin / 2, top, margin / 2, margin / 2));
    layOutAxes();
    frame_ = plotter_->axisRect()->rect();
}

void PlotScene::paint(QCPPainter& painter, QSize size, bool vectors) {
    layOut(size);
    series_->span = span;
    series_->lines = lines;
    painter.setMode(QCPPainter::pmVectorized, vectors);
    painter.setMode(QCPPainter::pmNonCosmetic, vectors);
    painter.fillRect(QRect(QPoint(0, 0), size), look_.paper);
    painter.setPen(look_.text);
    title_.paint(painter, margin, margin);
    legend_.paint(painter, {margin, legendTop_}, look_, lines);
    plotter_->toPainter(&painter, size.width(), size.height());
    for (int index = 0; index < int(notes.size()); ++index)
        paintNote(painter, notes[std::size_t(index)], frame_, look_, index == selectedNote);
}

} // namespace tally
