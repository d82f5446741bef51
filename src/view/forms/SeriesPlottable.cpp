// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/SeriesPlottable.h"

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double signDistance = 130; // pixels between the signs of one series

// The corners of a column's way as a line: in, down, up, out.
void addWay(QPolygonF& line, double x, const Column& column, const auto& pixelOf) {
    line << QPointF(x, pixelOf(column.first));
    if (column.low == column.high)
        return;
    line << QPointF(x, pixelOf(column.low)) << QPointF(x, pixelOf(column.high))
         << QPointF(x, pixelOf(column.last));
}

} // namespace

SeriesPlottable::SeriesPlottable(QCPAxis* x, QCPAxis* y) : QCPAbstractPlottable(x, y) {}

QCPRange SeriesPlottable::getKeyRange(bool& found, QCP::SignDomain) const {
    found = plot != nullptr;
    return found ? QCPRange(0, plot->points - 1) : QCPRange();
}

QCPRange SeriesPlottable::getValueRange(bool& found, QCP::SignDomain, const QCPRange&) const {
    found = plot != nullptr;
    return found ? QCPRange(plot->yMin, plot->yMax) : QCPRange();
}

Along SeriesPlottable::along() const {
    const double origin = keyAxis()->coordToPixel(0);
    return {origin, keyAxis()->coordToPixel(1) - origin};
}

double SeriesPlottable::pixelOf(float value) const {
    const QRect frame = clipRect();
    return std::clamp(valueAxis()->coordToPixel(double(value)), frame.top() - 8.0, frame.bottom() + 8.0);
}

std::pair<int, int> SeriesPlottable::inSight(const PlotSeries& series) const {
    const QCPRange range = keyAxis()->range();
    const int end = int(series.values.size()) - 1;
    return {std::clamp(int(std::floor(range.lower)) - 1, 0, std::max(end, 0)),
            std::clamp(int(std::ceil(range.upper)) + 1, -1, end)};
}

void SeriesPlottable::draw(QCPPainter* painter) {
    if (!plot)
        return;
    drawSpan(*painter);
    for (int index = 0; index < int(plot->series.size()); ++index) {
        const PlotSeries& series = plot->series[std::size_t(index)];
        const auto [first, last] = inSight(series);
        drawRun(*painter, series, {first, last, look.line(index), 1});
        for (const auto& [from, to] : series.forced)
            drawRun(*painter, series, {std::max(from, first), std::min(to, last), look.forced, 3});
    }
    if (plot->series.size() > 1)
        for (int index = 0; index < int(plot->series.size()); ++index)
            drawSigns(*painter, index);
}

void SeriesPlottable::drawSpan(QCPPainter& painter) const {
    if (!span)
        return;
    const auto [first, last] = std::minmax(span->first, span->second);
    const double left = keyAxis()->coordToPixel(first);
    const double width = std::max(keyAxis()->coordToPixel(last) - left, 2.0);
    const QRect frame = clipRect();
    const QRectF area(left, frame.top(), width, frame.height());
    painter.fillRect(area, look.span);
    painter.setPen(QPen(look.frame, 1, Qt::DashLine));
    painter.drawLine(area.topLeft(), area.bottomLeft());
    painter.drawLine(area.topRight(), area.bottomRight());
}

void SeriesPlottable::drawRun(QCPPainter& painter, const PlotSeries& series, const Run& run) const {
    const Along places = along();
    if (run.first > run.last || !(places.step > 0))
        return;
    if (places.step <= 1 && !painter.modes().testFlag(QCPPainter::pmVectorized))
        drawBars(painter, series, run, places);
    else
        drawLine(painter, series, run, places);
}

// Bars reach to where the column before went out, so that the line does not break.
void SeriesPlottable::drawBars(QCPPainter& painter, const PlotSeries& series, const Run& run,
                               Along places) const {
    QVector<QRect> bars;
    const int width = int(run.width);
    const std::vector<Column> columns = columnsOf(series.values, run.first, run.last, places);
    bars.reserve(int(columns.size()));
    const Column* before = nullptr;
    for (const Column& column : columns) {
        const bool joins = before && before->index + 1 == column.index;
        const float high = joins ? std::max(column.high, before->last) : column.high;
        const float low = joins ? std::min(column.low, before->last) : column.low;
        const int top = int(std::lround(pixelOf(high)));
        const int bottom = int(std::lround(pixelOf(low)));
        bars << QRect(column.index - width / 2, top - width / 2, width, bottom - top + width);
        before = &column;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(run.colour);
    painter.drawRects(bars);
}

void SeriesPlottable::drawLine(QCPPainter& painter, const PlotSeries& series, const Run& run,
                               Along places) const {
    const bool vectors = painter.modes().testFlag(QCPPainter::pmVectorized);
    // Few points are worth smooth lines; many would be slow and no better.
    const bool smooth = vectors || (run.last - run.first) * 4 < clipRect().width();
    painter.setAntialiasing(smooth);
    QPen pen(run.colour, smooth ? run.width + 0.5 : run.width);
    if (smooth) {
        pen.setJoinStyle(Qt::RoundJoin);
        pen.setCapStyle(Qt::RoundCap);
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const double grain = 0.5; // of a pixel, for paper
    const bool dense = vectors && places.step < grain;
    const auto pixel = [this](float value) { return pixelOf(value); };
    QPolygonF line;
    const auto finish = [&] {
        if (line.size() == 1)
            line << line.front() + QPointF(0.01, 0); // a lone point shows as a dot
        painter.drawPolyline(line);
        line.clear();
    };
    if (dense) {
        int before = -1;
        for (const Column& column : columnsOf(series.values, run.first, run.last, places, grain)) {
            if (!line.isEmpty() && column.index != before + 1)
                finish();
            addWay(line, (column.index + 0.5) * grain, column, pixel);
            before = column.index;
        }
    } else {
        for (int point = run.first; point <= run.last; ++point) {
            const float value = series.values[std::size_t(point)];
            if (std::isfinite(value))
                line << QPointF(places.origin + point * places.step, pixelOf(value));
            else if (!line.isEmpty())
                finish();
        }
    }
    if (!line.isEmpty())
        finish();
    painter.setAntialiasing(false);
}

void SeriesPlottable::drawSign(QPainter& painter, const QPointF& centre, int series, const ChartLook& look) {
    constexpr double r = 4;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.paper, 1));
    painter.setBrush(look.line(series));
    painter.translate(centre);
    switch (series % 4) {
    case 0:
        painter.drawEllipse(QPointF(0, 0), r, r);
        break;
    case 1:
        painter.drawPolygon(QPolygonF({{0, -r - 1}, {r + 1, r}, {-r - 1, r}}));
        break;
    case 2:
        painter.drawRect(QRectF(-r, -r, 2 * r, 2 * r));
        break;
    default:
        painter.drawPolygon(QPolygonF({{0, -r - 1}, {r + 1, 0}, {0, r + 1}, {-r - 1, 0}}));
    }
    painter.restore();
}

void SeriesPlottable::drawSigns(QCPPainter& painter, int index) const {
    const PlotSeries& series = plot->series[std::size_t(index)];
    const Along places = along();
    const QRect frame = clipRect();
    const double apart = std::max(signDistance, places.step);
    const double shift = apart * (index + 0.5) / double(plot->series.size());
    for (double x = frame.left() + shift; x < frame.right(); x += apart) {
        const int point = int(std::lround((x - places.origin) / places.step));
        if (point < 0 || point >= int(series.values.size()) ||
            !std::isfinite(series.values[std::size_t(point)]))
            continue;
        const QPointF centre(places.origin + point * places.step, pixelOf(series.values[std::size_t(point)]));
        drawSign(painter, centre, index, look);
    }
}

} // namespace tally
