// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/forms/CalendarView.h"

#include "core/forms/Words.h"
#include "view/forms/ChartLook.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <array>
#include <cmath>

namespace tally::archive {

namespace {

constexpr int left = 60;  // pixels, for the year
constexpr int right = 90; // for the sum
constexpr int top = 26;   // for the months
constexpr int rowHeight = 30;
constexpr int barHeight = 22;
constexpr int longestYear = 366;

const std::array<const char*, 12> months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

} // namespace

CalendarView::CalendarView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("coverageCalendar"));
    setAccessibleName(QStringLiteral("Calendar of coverage"));
    setMinimumWidth(left + right + longestYear);
}

void CalendarView::show(std::vector<CalendarYear> years) {
    years_ = std::move(years);
    setMinimumHeight(top + int(years_.size()) * rowHeight + 10);
    update();
}

double CalendarView::dayWidth() const {
    return double(width() - left - right) / longestYear;
}

QRectF CalendarView::dayBox(std::size_t year, std::size_t day) const {
    return {left + double(day) * dayWidth(), double(top) + double(year) * rowHeight, dayWidth(), barHeight};
}

QString CalendarView::wordsAt(QPointF place) const {
    const auto row = int(std::floor((place.y() - top) / rowHeight));
    const auto day = int(std::floor((place.x() - left) / dayWidth()));
    if (row < 0 || row >= int(years_.size()))
        return {};
    const CalendarYear& year = years_[std::size_t(row)];
    return day < 0 || day >= int(year.days.size()) ? QString() : words(dayWords(year, std::size_t(day)));
}

void CalendarView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const ChartLook look = ChartLook::onScreen(palette(), fontInfo().pixelSize());
    painter.fillRect(rect(), look.paper);
    for (std::size_t row = 0; row < years_.size(); ++row) {
        const CalendarYear& year = years_[row];
        const QRectF first = dayBox(row, 0);
        const QRectF whole(first.topLeft(), dayBox(row, year.days.size() - 1).bottomRight());
        painter.fillRect(whole, look.grid);
        for (std::size_t day = 0; day < year.days.size();) {
            std::size_t end = day;
            while (end < year.days.size() && year.days[end])
                ++end;
            if (end > day)
                painter.fillRect(QRectF(dayBox(row, day).topLeft(), dayBox(row, end - 1).bottomRight()),
                                 look.line(0));
            day = std::max(end, day + 1);
        }
        painter.setPen(look.text);
        painter.drawText(QRectF(0, first.top(), left - 8, barHeight), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(year.year));
        painter.drawText(QRectF(whole.right() + 8, first.top(), right - 8, barHeight), Qt::AlignVCenter,
                         QStringLiteral("%1 days").arg(year.covered));
        painter.setPen(look.paper);
        for (const std::size_t start : monthStarts(year))
            if (start > 0)
                painter.drawLine(dayBox(row, start).topLeft(), dayBox(row, start).bottomLeft());
    }
    painter.setPen(look.text);
    for (std::size_t month = 0; month < months.size() && !years_.empty(); ++month)
        painter.drawText(QPointF(dayBox(0, monthStarts(years_.front())[month]).left() + 2, top - 8),
                         QString::fromLatin1(months[month]));
}

bool CalendarView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), wordsAt(help->pos()), this);
    return true;
}

} // namespace tally::archive
