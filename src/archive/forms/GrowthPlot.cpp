// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/GrowthView.h"
#include "view/forms/ChartLook.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tally::archive {

namespace {

constexpr double letters = 24; // pixels for a line of text
constexpr double axis = 56;    // for the numbers of the y axis

// A round step that parts a height into about five.
double stepFor(double highest) {
    const double rough = std::max(highest, 1e-9) / 5;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (rough <= factor * power)
            return factor * power;
    return 10 * power;
}

} // namespace

GrowthPlot::GrowthPlot(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("growthPlot"));
    setAccessibleName(QStringLiteral("Peak and mean by year"));
    setMinimumSize(240, 160);
}

void GrowthPlot::show(std::vector<YearOfLoad> years, const QString& unit) {
    years_ = std::move(years);
    unit_ = unit;
    update();
}

void GrowthPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ChartLook look = ChartLook::onScreen(palette(), fontInfo().pixelSize());
    painter.fillRect(rect(), look.paper);
    if (years_.empty())
        return;
    double highest = 0;
    for (const YearOfLoad& year : years_)
        highest = std::max(highest, year.peak);
    const double step = stepFor(highest);
    const double ceiling = std::max(std::ceil(highest / step), 1.0) * step;
    const QRectF box = QRectF(rect()).adjusted(axis, letters, -10, -letters);
    const auto y = [&](double value) { return box.bottom() - value / ceiling * box.height(); };
    for (double value = 0; value < ceiling + step / 2; value += step) {
        painter.setPen(look.grid);
        painter.drawLine(QPointF(box.left(), y(value)), QPointF(box.right(), y(value)));
        painter.setPen(look.text);
        painter.drawText(QRectF(0, y(value) - letters / 2, axis - 6, letters),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(value));
    }
    painter.drawText(QPointF(6, letters - 8), unit_);
    const double width = box.width() / double(years_.size());
    for (std::size_t at = 0; at < years_.size(); ++at) {
        const YearOfLoad& year = years_[at];
        const double left = box.left() + double(at) * width;
        const auto bar = [&](double from, double to, double value, const QColor& colour) {
            painter.fillRect(QRectF(QPointF(left + from * width, y(std::max(value, 0.0))),
                                    QPointF(left + to * width, box.bottom())),
                             colour);
        };
        bar(0.15, 0.5, year.peak, look.line(0));
        bar(0.5, 0.85, year.mean, look.line(1));
        painter.drawText(QRectF(left, box.bottom(), width, letters), Qt::AlignCenter,
                         QString::number(year.year));
    }
    const QRectF legend(box.right() - 130, 0, 130, letters);
    painter.setPen(look.line(0));
    painter.drawText(legend, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("■ Peak"));
    painter.setPen(look.line(1));
    painter.drawText(legend, Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("■ Mean"));
}

} // namespace tally::archive
