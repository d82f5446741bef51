// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/SeriesPlottable.h"

#include "view/PlotAxis.h"

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double signDistance = 130; // pixels between the signs of one series
constexpr double pointMark = 3.5;    // radius of a point that stands alone
constexpr double forcedMark = 4;
constexpr double shortRun = 6; // pixels below which a forced run gets a mark

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

double SeriesPlottable::pixelOf(float value, int axis) const {
    const QRect frame = clipRect();
    const double height = valueAxis()->coordToPixel(onFirstAxis(*plot, double(value), axis));
    return std::clamp(height, frame.top() - 8.0, frame.bottom() + 8.0);
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
    drawLimits(*painter);
    const int count = int(plot->series.size());
    for (int index = 0; index < count; ++index)
        if (index != lines.lifted)
            drawSeries(*painter, index);
    if (lines.lifted >= 0 && lines.lifted < count)
        drawSeries(*painter, lines.lifted);
    if (count > 1)
        for (int index = 0; index < count; ++index)
            if (!lines.isHidden(index))
                drawSigns(*painter, index);
}

void SeriesPlottable::drawSeries(QCPPainter& painter, int index) const {
    if (lines.isHidden(index))
        return;
    const PlotSeries& series = plot->series[std::size_t(index)];
    const auto [first, last] = inSight(series);
    const double width = index == lines.lifted ? 3 : 1;
    drawRun(painter, series,
            {first, last, look.line(series.phase, index), width, ChartLook::dashes(series.phase)});
    const Along places = along();
    for (const auto& [from, to] : series.forced) {
        const Run run{std::max(from, first), std::min(to, last), look.forced, 3};
        drawRun(painter, series, run);
        if (run.first <= run.last && (run.last - run.first) * places.step < shortRun)
            drawMark(painter,
                     {places.origin + run.first * places.step,
                      pixelOf(series.values[std::size_t(run.first)], series.axis)},
                     look.forced, forcedMark);
    }
}

void SeriesPlottable::drawMark(QCPPainter& painter, QPointF centre, const QColor& colour,
                               double radius) const {
    painter.save();
    const int more = int(radius) + 1;
    painter.setClipRect(clipRect().adjusted(-more, -more, more, more));
    painter.setAntialiasing(true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

// The words stand on the line, at the right end.
void SeriesPlottable::drawLimits(QCPPainter& painter) const {
    const QRect frame = clipRect();
    painter.setFont(look.font);
    const QFontMetrics metrics(look.font);
    for (const LimitLine& limit : plot->limits) {
        const double y = pixelOf(float(limit.value), limit.axis);
        if (y < frame.top() || y > frame.bottom())
            continue;
        painter.setPen(QPen(look.limit, 1.5, Qt::DashLine));
        painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));
        const QString words = QString::fromStdString(limit.label);
        const int wide = std::min(metrics.horizontalAdvance(words) + 2, frame.width() / 2);
        const bool above = y - metrics.height() - 2 >= frame.top();
        const QRectF room(frame.right() - wide - 4, above ? y - metrics.height() - 1 : y + 2, wide,
                          metrics.height());
        painter.setPen(look.limit);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(words, Qt::ElideRight, wide));
    }
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
        const int top = int(std::lround(pixelOf(high, series.axis)));
        const int bottom = int(std::lround(pixelOf(low, series.axis)));
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
    const double grain = 0.5; // of a pixel, for paper
    const bool dense = vectors && places.step < grain;
    // Where points stand close dashes would hide some; there the signs tell the lines apart.
    if (smooth && places.step > 2 && !run.dashes.isEmpty()) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(run.dashes);
    }
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const auto pixel = [&](float value) { return pixelOf(value, series.axis); };
    QPolygonF line;
    const auto finish = [&] {
        if (line.size() == 1)
            drawMark(painter, line.front(), run.colour, pointMark);
        else
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
                line << QPointF(places.origin + point * places.step, pixel(value));
            else if (!line.isEmpty())
                finish();
        }
    }
    if (!line.isEmpty())
        finish();
    painter.setAntialiasing(false);
}

void SeriesPlottable::drawSign(QPainter& painter, const QPointF& centre, int series, const QColor& colour,
                               const QColor& paper) {
    constexpr double r = 4;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(paper, 1));
    painter.setBrush(colour);
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
        const QPointF centre(places.origin + point * places.step,
                             pixelOf(series.values[std::size_t(point)], series.axis));
        drawSign(painter, centre, index, look.line(series.phase, index), look.paper);
    }
}

} // namespace tally
