// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "archive/Calendar.h"

#include <QWidget>

#include <optional>

namespace tally::archive {

// The calendar of coverage: a row a year, a stroke a day.
class CalendarView : public QWidget {
    Q_OBJECT

public:
    explicit CalendarView(QWidget* parent = nullptr);

    void show(std::vector<CalendarYear> years);
    const std::vector<CalendarYear>& years() const { return years_; }
    // What is said of the day at a place; empty where there is none.
    QString wordsAt(QPointF place) const;
    // Where a day is drawn.
    QRectF dayBox(std::size_t year, std::size_t day) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    double dayWidth() const;

    std::vector<CalendarYear> years_;
};

} // namespace tally::archive
