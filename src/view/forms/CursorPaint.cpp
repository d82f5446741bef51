// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/forms/CursorPaint.h"

#include "view/PointReadings.h"
#include "view/forms/PlotScene.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tally {
namespace {

constexpr double markRadius = 4.5;
constexpr int padding = 6;
constexpr int away = 14; // pixels between cross and box
constexpr int swatch = 16;

struct Row {
    QString name;
    QString value;
    QColor colour;
};

bool isDrawn(const PlotScene& scene, int series, int point) {
    const PlotSeries& line = scene.plot().series[std::size_t(series)];
    return !scene.lines.isHidden(series) && line.has(point) && point < int(line.values.size()) &&
           std::isfinite(line.values[std::size_t(point)]);
}

void paintCross(QPainter& painter, const PlotScene& scene, const Cursor& cursor) {
    const QRectF frame = scene.frame();
    const double x = scene.placeOf(cursor.point, cursor.series).x();
    QColor thin = scene.look().text;
    thin.setAlpha(150);
    painter.setPen(QPen(thin, 1, Qt::SolidLine));
    painter.drawLine(QPointF(x, frame.top()), QPointF(x, frame.bottom()));
    const double y = std::clamp(cursor.place.y(), frame.top(), frame.bottom());
    painter.drawLine(QPointF(frame.left(), y), QPointF(frame.right(), y));
}

void paintMarks(QPainter& painter, const PlotScene& scene, const Cursor& cursor) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (int series = 0; series < int(scene.plot().series.size()); ++series) {
        if (!isDrawn(scene, series, cursor.point))
            continue;
        const QPointF place = scene.placeOf(cursor.point, series);
        if (!scene.frame().contains(place))
            continue;
        painter.setPen(QPen(scene.look().paper, 1.5));
        painter.setBrush(scene.look().line(scene.plot().series[std::size_t(series)].phase, series));
        painter.drawEllipse(place, markRadius, markRadius);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

std::vector<Row> rowsOf(const PlotScene& scene, int point) {
    std::vector<Row> rows;
    const auto readings = pointReadings(scene.plot(), point);
    for (int series = 0; series < int(readings.size()); ++series)
        if (!scene.lines.isHidden(series))
            rows.push_back({QString::fromStdString(readings[std::size_t(series)].name),
                            QString::fromStdString(readings[std::size_t(series)].value),
                            scene.look().line(scene.plot().series[std::size_t(series)].phase, series)});
    return rows;
}

// Beside the cross on the side where there is room, inside the frame.
QRectF boxPlace(const QSizeF& size, const QRectF& frame, const QPointF& cross) {
    double x = cross.x() + away;
    if (x + size.width() > frame.right())
        x = cross.x() - away - size.width();
    double y = cross.y() - away - size.height();
    if (y < frame.top())
        y = cross.y() + away;
    return {QPointF(std::max(x, frame.left()),
                    std::clamp(y, frame.top(), std::max(frame.bottom() - size.height(), frame.top()))),
            size};
}

void paintRows(QPainter& painter, const std::vector<Row>& rows, const QString& time, const ChartLook& look,
               const QRectF& place) {
    const int line = QFontMetrics(look.font).height();
    QRectF room = place.adjusted(padding, padding, -padding, -padding);
    room.setHeight(line);
    if (!time.isEmpty()) {
        painter.setPen(look.text);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, time);
        room.translate(0, line);
    }
    for (const Row& row : rows) {
        painter.fillRect(QRectF(room.left(), room.center().y() - 1.5, swatch - 6, 3), row.colour);
        painter.setPen(look.text);
        painter.drawText(room.adjusted(swatch, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, row.name);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, row.value);
        room.translate(0, line);
    }
}

void paintBox(QPainter& painter, const PlotScene& scene, const Cursor& cursor, const QString& time) {
    const ChartLook& look = scene.look();
    const QFontMetrics metrics(look.font);
    std::vector<Row> rows = rowsOf(scene, cursor.point);
    int widest = metrics.horizontalAdvance(time);
    for (Row& row : rows) {
        row.name = metrics.elidedText(row.name, Qt::ElideMiddle, int(scene.frame().width() / 3));
        widest = std::max(widest,
                          swatch + metrics.horizontalAdvance(row.name + QStringLiteral("   ") + row.value));
    }
    const int lines = int(rows.size()) + (time.isEmpty() ? 0 : 1);
    const QSizeF size(widest + 2 * padding, lines * metrics.height() + 2 * padding);
    const double x = scene.placeOf(cursor.point, cursor.series).x();
    const QRectF place = boxPlace(size, scene.frame(), {x, cursor.place.y()});
    QColor ground = look.paper;
    ground.setAlpha(235);
    painter.setPen(QPen(look.frame, 1));
    painter.setBrush(ground);
    painter.drawRect(place);
    painter.setFont(look.font);
    paintRows(painter, rows, time, look, place);
}

} // namespace

void paintCursor(QPainter& painter, const PlotScene& scene, const Cursor& cursor, const QString& time) {
    const Plot& plot = scene.plot();
    if (cursor.point < 0 || cursor.point >= plot.points || cursor.series < 0 ||
        cursor.series >= int(plot.series.size()))
        return;
    painter.save();
    paintCross(painter, scene, cursor);
    paintMarks(painter, scene, cursor);
    paintBox(painter, scene, cursor, time);
    painter.restore();
}

} // namespace tally
