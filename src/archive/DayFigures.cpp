// SPDX-License-Identifier: GPL-3.0-or-later
#include "archive/DayFigures.h"

#include "archive/BlockCounter.h"
#include "archive/Packed.h"

#include <algorithm>

namespace tally::archive {

namespace {

void addPoint(Figures& figures, const Load& load, std::size_t point) {
    const std::int64_t high = load.high(point);
    if (figures.points == 0 || high > figures.highest) {
        figures.highest = high;
        figures.highestAt = load.at(point);
    }
    ++figures.points;
    figures.total += load.average[point];
}

} // namespace

void Figures::add(const Figures& later) {
    if (later.points > 0 && (points == 0 || later.highest > highest)) {
        highest = later.highest;
        highestAt = later.highestAt;
    }
    if (later.blocks > 0 && (blocks == 0 || later.blockHighest > blockHighest))
        blockHighest = later.blockHighest;
    points += later.points;
    total += later.total;
    blocks += later.blocks;
    blockTotal += later.blockTotal;
}

std::optional<double> meanOf(const Figures& figures, std::int64_t scale) {
    if (figures.points == 0)
        return std::nullopt;
    return static_cast<double>(figures.total) / static_cast<double>(figures.points * scale * 10);
}

std::optional<double> loadFactorOf(const Figures& figures, char unit) {
    if (unit == 'V' || figures.blocks == 0 || figures.blockHighest == 0)
        return std::nullopt;
    return static_cast<double>(figures.blockTotal) /
           (static_cast<double>(figures.blocks) * static_cast<double>(figures.blockHighest));
}

Figures DayFigures::between(int from, int to) const {
    Figures sum;
    const int last = std::min(to, firstDay + static_cast<int>(days.size()) - 1);
    for (int day = std::max(from, firstDay); day <= last; ++day)
        sum.add(days[static_cast<std::size_t>(day - firstDay)]);
    return sum;
}

DayFigures dayFiguresOf(const Load& load) {
    DayFigures figures;
    figures.firstDay = dayOf(load.start);
    BlockCounter counter(load.interval);
    for (std::size_t point = 0; point < load.points(); ++point) {
        const ReadingTime at = load.at(point);
        const auto day = static_cast<std::size_t>(dayOf(at) - figures.firstDay);
        if (day >= figures.days.size())
            figures.days.resize(day + 1);
        addPoint(figures.days[day], load, point);
        counter.add(at, load.average[point], figures.days[day]);
    }
    return figures;
}

std::string packDays(const DayFigures& figures) {
    std::string bytes;
    putNumber(bytes, figures.firstDay);
    int number = figures.firstDay;
    for (const Figures& day : figures.days) {
        putNumber(bytes, day.points);
        putNumber(bytes, day.total);
        putNumber(bytes, day.highest);
        putNumber(bytes, day.highestAt.minutes - startOf(number++).minutes);
        putNumber(bytes, day.blocks);
        putNumber(bytes, day.blockTotal);
        putNumber(bytes, day.blockHighest);
    }
    return bytes;
}

std::optional<DayFigures> unpackDays(std::string_view bytes) {
    DayFigures figures;
    NumberReader reader(bytes);
    figures.firstDay = static_cast<int>(reader.next());
    int number = figures.firstDay;
    while (!reader.atEnd()) {
        Figures& day = figures.days.emplace_back();
        day.points = reader.next();
        day.total = reader.next();
        day.highest = reader.next();
        day.highestAt = startOf(number++) + reader.next();
        day.blocks = reader.next();
        day.blockTotal = reader.next();
        day.blockHighest = reader.next();
    }
    if (reader.damaged())
        return std::nullopt;
    return figures;
}

} // namespace tally::archive
