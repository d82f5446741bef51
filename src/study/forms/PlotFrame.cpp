// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/forms/PlotFrame.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tally::study {

std::vector<double> roundTicks(double from, double to, int wanted) {
    std::vector<double> ticks;
    const double raw = (to - from) / wanted;
    if (!(raw > 0))
        return ticks;
    const double power = std::pow(10, std::floor(std::log10(raw)));
    const double part = raw / power;
    const double step = (part <= 1 ? 1 : part <= 2 ? 2 : part <= 5 ? 5 : 10) * power;
    const double first = std::ceil(from / step);
    const int count = int(std::floor(to / step + 1e-6 - first)) + 1;
    for (int i = 0; i < count; ++i)
        ticks.push_back((first + i) * step);
    return ticks;
}

QRectF boxIn(const QRectF& place, const ChartLook& look) {
    const QFontMetricsF metrics(look.font);
    const double line = metrics.height();
    return place.adjusted(metrics.horizontalAdvance(QStringLiteral("00000.0")) + 8, line * 1.4, -10,
                          -line * 1.5);
}

std::pair<double, double> axisOver(double minimum, double maximum) {
    const double height = maximum - minimum;
    // Volts lie far from 0 and move little: there the axis need not begin at 0.
    const double from = minimum > 0 && height < maximum * 0.4
                            ? minimum - std::max(height * 0.1, maximum * 0.005)
                            : std::min(minimum, 0.0);
    const double to = maximum + std::max((maximum - from) * 0.05, 0.1);
    return {from, to};
}

void PlotFrame::paint(QPainter& painter, const ChartLook& look, const QString& title,
                      const QString& unit) const {
    const QFontMetricsF metrics(look.font);
    painter.setFont(look.font);
    for (const double tick : roundTicks(yFrom, yTo, std::max(int(box.height() / 40), 2))) {
        const double at = y(tick);
        painter.setPen(look.grid);
        painter.drawLine(QPointF(box.left(), at), QPointF(box.right(), at));
        painter.setPen(look.text);
        painter.drawText(QRectF(box.left() - 100, at - metrics.height(), 94, 2 * metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(tick, 'g', 6));
    }
    painter.setPen(look.frame);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    painter.setPen(look.text);
    const QString whole = unit.isEmpty() ? title : title + QStringLiteral(", ") + unit;
    painter.drawText(QPointF(box.left(), box.top() - metrics.descent() - 3), whole);
}

void PlotFrame::label(QPainter& painter, const ChartLook& look, double value, const QString& text) const {
    const QFontMetricsF metrics(look.font);
    painter.setFont(look.font);
    painter.setPen(look.text);
    const double at = x(value);
    painter.drawLine(QPointF(at, box.bottom()), QPointF(at, box.bottom() + 3));
    painter.drawText(QRectF(at - 100, box.bottom() + 3, 200, metrics.height() * 1.2),
                     Qt::AlignHCenter | Qt::AlignTop, text);
}

std::size_t labelStep(const ChartLook& look, const PlotFrame& frame, std::size_t points,
                      const QString& sample) {
    constexpr double usual = 6; // more would be a line of figures
    constexpr double gap = 12;  // pixels
    const double room = frame.box.width() / (QFontMetricsF(look.font).horizontalAdvance(sample) + gap);
    return std::size_t(std::ceil(double(points) / std::clamp(std::floor(room), 1.0, usual)));
}

void paintLegend(QPainter& painter, const ChartLook& look, const QRectF& place,
                 const std::vector<std::pair<QString, QColor>>& names) {
    const QFontMetricsF metrics(look.font);
    painter.setFont(look.font);
    double right = place.right();
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        right -= metrics.horizontalAdvance(name->first);
        const double middle = place.top() - metrics.height() * 0.55;
        painter.setPen(look.text);
        painter.drawText(QPointF(right, place.top() - metrics.descent() - 3), name->first);
        painter.setPen(QPen(name->second, 2));
        painter.drawLine(QPointF(right - 22, middle), QPointF(right - 5, middle));
        right -= 34;
    }
}

} // namespace tally::study
